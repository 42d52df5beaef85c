#ifndef VARNEL_CONTRACTS_KZREINFMESH_H
#define VARNEL_CONTRACTS_KZREINFMESH_H

#include <string>

#include "varnel/contracts/Export.h"
#include "varnel/contracts/NamedList.h"

class KzReinfStockMesh;

/// A mesh of reinforcement: name and steel in the two directions, in cm2/m.
class VARNEL_EXPORT KzReinfMesh {
  public:
    KzReinfMesh(const std::string &name, double asX, double asY) : name_(name), asX_(asX), asY_(asY) {}
    /// The copy belongs to no list.
    KzReinfMesh(const KzReinfMesh &) = default;
    KzReinfMesh &operator=(const KzReinfMesh &) = delete;
    virtual ~KzReinfMesh() = default;

    const std::string &getName() const { return name_.get(); }
    void setName(const std::string &name) { name_.set(name); }
    double getAsX() const { return asX_; }
    void setAsX(double asX) { asX_ = asX; }
    double getAsY() const { return asY_; }
    void setAsY(double asY) { asY_ = asY; }

  private:
    friend class varnel::NamedList<KzReinfStockMesh>;

    varnel::ListedName<KzReinfStockMesh> name_;
    double asX_;
    double asY_;
};

#endif
