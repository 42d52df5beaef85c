#ifndef VARNEL_RESULTS_VARNELRESULTSECTION_H
#define VARNEL_RESULTS_VARNELRESULTSECTION_H

#include <list>
#include <string>

#include "varnel/contracts/Export.h"
#include "varnel/contracts/KzVector3D.h"
#include "varnel/contracts/Shared.h"
#include "varnel/geometry/VarnelPosition.h"

class Varnel;
class VarnelArea;
class VarnelResultSectionLocation;

/// A line through the model along which the host reports results. Copies share the line and the locations,
/// which are owned by all of them together.
class VARNEL_EXPORT VarnelResultSection : public VarnelPosition {
  public:
    /// A section of length zero at the origin, with the normal (0, 0, 1). The model is not kept.
    explicit VarnelResultSection(Varnel *model);
    /// A section from `p1` to `p2`, with a zero normal. The model is not kept.
    VarnelResultSection(Varnel *model, const KzVector3D &p1, const KzVector3D &p2);
    /// Takes number, in-plane flag and name, and shares line and locations; the normal stays zero.
    VarnelResultSection(const VarnelResultSection &other);
    /// The same, but this section's normal stays what it is.
    VarnelResultSection &operator=(const VarnelResultSection &other);
    ~VarnelResultSection() override;

    /// As it was given at birth; there is no other way to set it.
    KzVector3D getNormal() const { return normal_; }
    /// Stored for the host.
    bool getInPlane() const { return inPlane_; }
    void setInPlane(bool inPlane) { inPlane_ = inPlane; }

    /// The line, kept as an area that runs out and back.
    VarnelArea *getGeo() const { return geo_.get(); }
    /// Start and end (m) of the first line; the origin if there is none.
    void setP1(const KzVector3D &point);
    void setP2(const KzVector3D &point);
    KzVector3D getP1() const;
    KzVector3D getP2() const;

    /// The locations, owned: whoever puts one into the list hands it over.
    std::list<VarnelResultSectionLocation *> &getLocations() { return locations_; }
    const std::list<VarnelResultSectionLocation *> &getLocations() const { return locations_; }
    /// Gives up all locations; the line stays.
    void reset();

    void setName(const std::string &name) override { name_ = name; }
    const std::string &getName() const override { return name_; }

  private:
    KzVector3D normal_;
    bool inPlane_ = true;
    std::string name_;
    varnel::Held<VarnelArea> geo_;
    std::list<VarnelResultSectionLocation *> locations_;
};

#endif
