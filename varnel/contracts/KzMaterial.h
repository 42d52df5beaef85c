#ifndef VARNEL_CONTRACTS_KZMATERIAL_H
#define VARNEL_CONTRACTS_KZMATERIAL_H

#include <string>

#include "varnel/contracts/Export.h"
#include "varnel/contracts/NamedList.h"

/// A material: name, density and specific weight. Setters raise the change flag of the material and of the
/// manager that owns it when the value differs. Look-ups go by the name that is stored here. Hosts rely on
/// the order of the virtual operations: the name is number 9, counted from the destructor as 0.
class VARNEL_EXPORT KzMaterial {
  public:
    enum Kind : int { OTHER = 0, CONCRETE, STEEL, REINFORCEMENT, PRESTRESS, TIMBER, MASONRY };

    /// `rho` in kg/m3, `gamma` in kN/m3.
    KzMaterial(const std::string &name, double rho, double gamma, Kind kind = OTHER)
        : name_(name), rho_(rho), gamma_(gamma), kind_(kind) {}
    /// The copy belongs to no manager.
    KzMaterial(const KzMaterial &) = default;
    KzMaterial &operator=(const KzMaterial &) = delete;
    virtual ~KzMaterial() = default;

    /// A copy of the derived kind, the caller's to delete.
    virtual KzMaterial *clone() const { return new KzMaterial(*this); }
    /// Density in kg/m3.
    virtual double getRho() const { return rho_; }
    virtual void setRho(double rho) { assign(rho_, rho); }
    /// Specific weight in kN/m3.
    virtual double getGammaValue() const { return gamma_; }
    virtual void setGammaValue(double gamma) { assign(gamma_, gamma); }
    virtual Kind getKind() const { return kind_; }
    /// Born changed.
    virtual bool getChanged() const { return changed_; }
    virtual void setChanged(bool value) { changed_ = value; }
    virtual const std::string &getName() const { return name_.get(); }
    virtual void setName(const std::string &name);

  protected:
    void markChanged();
    template <class Value>
    void assign(Value &field, Value value) {
        if (field == value) return;
        field = value;
        markChanged();
    }

  private:
    friend class varnel::NamedList<KzMaterial>;

    varnel::ListedName<KzMaterial> name_;
    double rho_;
    double gamma_;
    Kind kind_;
    bool changed_ = true;
};

#endif
