#ifndef VARNEL_MEMBERS_VARNELLINEBOUNDARYDATA_H
#define VARNEL_MEMBERS_VARNELLINEBOUNDARYDATA_H

#include <string>
#include <vector>

#include "varnel/contracts/Link.h"
#include "varnel/geometry/VarnelPosition.h"
#include "varnel/members/BoundaryListing.h"
#include "varnel/members/VarnelBoundaryData.h"

/// The values of a line support: of an edge of a plate or of a free line. Several supports on one line refer
/// to one record, which stands for all of them. A dying record leaves the lists of the models that list it,
/// and nobody refers to it any more.
class VARNEL_EXPORT VarnelLineBoundaryData : public VarnelPosition,
                                             public VarnelBoundaryData,
                                             public varnel::LinkTarget {
  public:
    /// What the local system is; the host's values.
    enum LocalSystemType : int { DefaultLocalSystem = 1 };

    VarnelLineBoundaryData() : VarnelLineBoundaryData(0, std::string()) {}
    VarnelLineBoundaryData(int dof, const std::string &name);
    /// All values but the number, the reference and the type; springs of its own. Marks a change.
    VarnelLineBoundaryData(const VarnelLineBoundaryData &other);
    /// As copying: the number and the type stay, the reference is null afterwards.
    VarnelLineBoundaryData &operator=(const VarnelLineBoundaryData &other);
    ~VarnelLineBoundaryData() override;

    /// In m; setting marks a change.
    double getWidth() const { return width_; }
    void setWidth(double width);
    /// The record that stands for this one, shared; null before references are set up. Marks no change.
    VarnelLineBoundaryData *getReference() const { return reference_.get(); }
    void setReference(VarnelLineBoundaryData *reference) { reference_.set(reference); }
    /// Whether this record stands for itself.
    bool isReference() const { return getReference() == this; }
    /// Direction for the local base; marks no change.
    const KzVector3D &getLocsys() const { return locsys_; }
    void setLocsys(const KzVector3D &direction) { locsys_ = direction; }
    void setLocsys(double x, double y, double z) { locsys_ = KzVector3D(x, y, z); }
    /// Marks no change.
    LocalSystemType getType() const { return type_; }
    void setType(LocalSystemType type) { type_ = type; }
    void setType(int type) { type_ = static_cast<LocalSystemType>(type); }
    /// Whether the springs act in the local base; setting marks a change.
    bool getLocal() const { return local_; }
    void setLocal(bool local);
    /// Whether this record stands for itself and fixes a degree of freedom of the mask.
    bool isBounded(int mask) const { return (getDof() & mask) != 0 && isReference(); }

    /// Marks no change.
    void setName(const std::string &name) override { VarnelBoundaryData::setName(name); }
    const std::string &getName() const override { return VarnelBoundaryData::getName(); }
    /// The record's own flag. That of the values common to all supports does not count: changed degrees of
    /// freedom and springs do not show here.
    virtual bool getChanged() const { return changed_; }
    virtual void setChanged(bool changed) { changed_ = changed; }

  private:
    friend void varnel::list(VarnelLineBoundaryData *, varnel::BoundaryList &);
    friend void varnel::unlist(VarnelLineBoundaryData *, varnel::BoundaryList &);
    friend void varnel::unlistAll(varnel::BoundaryList &);

    struct Listing {
        varnel::BoundaryList *list;
        varnel::BoundaryList::iterator place;
    };

    void copy(const VarnelLineBoundaryData &other);

    double width_ = 0.0;
    varnel::Link<VarnelLineBoundaryData> reference_;
    KzVector3D locsys_{0.0, 0.0, 1.0};
    LocalSystemType type_ = DefaultLocalSystem;
    bool changed_ = true;
    bool local_ = false;
    std::vector<Listing> listings_;  // where models list this record
};

#endif
