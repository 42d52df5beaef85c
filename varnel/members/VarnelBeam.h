#ifndef VARNEL_MEMBERS_VARNELBEAM_H
#define VARNEL_MEMBERS_VARNELBEAM_H

#include <list>
#include <string>
#include <unordered_map>
#include <vector>

#include "varnel/contracts/Export.h"
#include "varnel/contracts/KzMatrix44.h"
#include "varnel/contracts/KzVector3D.h"
#include "varnel/contracts/Link.h"
#include "varnel/contracts/Shared.h"
#include "varnel/geometry/VarnelObject.h"
#include "varnel/geometry/VarnelPosition.h"
#include "varnel/geometry/VarnelStateObject.h"

class KzConcrete;
class KzMaterial;
class KzReinfLine;
class SDBSectionLine;
class VarnelBase;
class VarnelBeamGeo;
class VarnelBeamProperties;
class VarnelDesignData;
class VarnelFoundedPart;
class VarnelGapControl;
class VarnelJoint;
class VarnelManager;
class VarnelPoint;
namespace FireDesign {
class TemperatureDistribution;
}
namespace Found {
class Foundation;
}
namespace SysBase {
class BeamDesignLocation;
class BeamResultState;
}  // namespace SysBase

/// A bar member: an axis, which is a chain with at least one line, a record of properties, and lists of
/// joints, founded parts and results. All of these are owned, and shared with member-wise copies of the beam.
class VARNEL_EXPORT VarnelBeam : public VarnelStateObject,
                                 public VarnelPosition,
                                 public VarnelObject,
                                 public varnel::LinkTarget {
  public:
    /// The meaning of both numbers is the host's services', except that designers call an element of
    /// type 1 a beam and any other a bar.
    enum Type : int { DefaultType = 0 };
    enum ElementType : int { BeamElement = 1 };

    /// Has one line of length zero at the origin, until setLine moves its ends.
    VarnelBeam();
    /// Copies axis, properties and design results into objects of its own. All else is as in a new beam:
    /// joints, founded parts, result states, gaps and base are for the copier to link again.
    VarnelBeam(const VarnelBeam &other);
    /// Member by member: both beams then share all that they point to, and the last one frees it.
    VarnelBeam &operator=(const VarnelBeam &other);
    ~VarnelBeam() override;

    /// Mesh size along the beam (m); setting it marks no change.
    double getMeshSize() const { return meshSize_; }
    void setMeshSize(double size) { meshSize_ = size; }

    /// Gaps at both ends, null for none. The setters take over and mark no change; a replaced gap stays with
    /// the beam until the beam dies.
    VarnelGapControl *getLeftGap() const { return leftGap_.get(); }
    void setLeftGap(VarnelGapControl *gap);
    VarnelGapControl *getRightGap() const { return rightGap_.get(); }
    void setRightGap(VarnelGapControl *gap);

    /// The axis. Setting one gives up the former axis and marks no change; null is harmless.
    VarnelBeamGeo *getGeo() const { return geometry_.get(); }
    void setGeo(VarnelBeamGeo *geometry);
    /// A fixed local frame for getBaseMatrix, shared; null for none. Setting it marks no change.
    VarnelBase *getBase() const { return base_; }
    void setBase(VarnelBase *base) { base_ = base; }

    const std::list<VarnelFoundedPart *> &getFoundations() const { return foundations_; }
    const std::list<SysBase::BeamResultState *> &getResultStates() const { return resultStates_; }
    const std::list<VarnelJoint *> &getJoints() const { return joints_; }
    const std::vector<SysBase::BeamDesignLocation *> &getDesignResults() const { return designResults_; }

    const VarnelBeamProperties &getData() const { return *data_; }
    /// Assigns the record and marks the beam as changed.
    void setData(const VarnelBeamProperties &data);

    /// Whether fire acts on the beam; setting it marks no change.
    bool isFireExposed() const { return fireExposed_; }
    void setFireExposed(bool exposed) { fireExposed_ = exposed; }

    /// Start of the first and end of the last line; a point at the origin if there is no line.
    const VarnelPoint &getStart() const;
    const VarnelPoint &getEnd() const;
    const KzVector3D &getStartVec() const;
    const KzVector3D &getEndVec() const;
    /// Moves point `index` of the axis to `start` and the next one to `end`, as VarnelLineHolder::setCoor
    /// does; a negative index is ignored.
    void setLine(const KzVector3D &start, const KzVector3D &end, int index);
    double getLength() const;
    /// The point at a relative station on the straight from start to end, also for a kinked axis.
    KzVector3D getPosition(double station) const;

    /// Frame on the straight from start to end: x along it, y horizontal (global y for a vertical beam).
    KzMatrix44 getMatrix() const;
    /// The frame of the base if there is one, else that of getMatrix turned about x by the angle.
    KzMatrix44 getBaseMatrix() const;

    /// Appends a joint, owned, and marks a change.
    void add(VarnelJoint *joint);
    /// Takes a joint out, undeleted: it is the caller's from then on. Marks a change.
    void remove(VarnelJoint *joint);
    /// Frees all joints and marks a change.
    void removeJoints();
    int getNumberOfJoints() const;
    /// The first joint at exactly that station, or null.
    VarnelJoint *findJoint(double pos) const;

    // The properties of the record (see VarnelBeamProperties). Setters mark a change where they say so.

    SDBSectionLine *getSection(int index) const;
    /// Marks a change.
    void setSection(SDBSectionLine *section, int index);
    KzVector3D getOffset(unsigned index) const;
    /// Marks a change.
    void setOffset(const KzVector3D &offset, unsigned index);
    bool hasOffset() const;
    double getAngle() const;
    void setAngle(double degrees);
    ElementType getElementType() const;
    void setElementType(ElementType type);
    void setElementType(int type) { setElementType(static_cast<ElementType>(type)); }
    Type getBeamType() const;
    void setBeamType(Type type);
    void setBeamType(int type) { setBeamType(static_cast<Type>(type)); }
    int getParts() const;
    /// Divides the first line, and only that, into parts and marks a change; ignored below 1.
    void setParts(int parts);
    Found::Foundation *getFoundation() const;
    /// Stores the foundation and ASSIGNS the change flag: true for another foundation, false for the same.
    void setFoundation(Found::Foundation *foundation);
    VarnelDesignData *getDesign() const;
    /// Copies the design data, null takes them away; marks a change.
    void setDesign(const VarnelDesignData *design);
    KzReinfLine *getReinfLine() const;
    void setReinfLine(KzReinfLine *line);
    /// The one material of the beam, whatever the index; getConcrete is null for another material.
    KzConcrete *getConcrete(int index) const;
    KzMaterial *getMaterial(int index) const;
    void setMaterial(KzMaterial *material, int index);
    const FireDesign::TemperatureDistribution *getTemperatureDistribution() const;
    void setTemperatureDistribution(const FireDesign::TemperatureDistribution *distribution);

    /// The first result state of that number; made if absent.
    SysBase::BeamResultState *giveResultState(int number);
    /// The first result state of that number, or null.
    SysBase::BeamResultState *findResultState(int number) const;
    /// Frees result states and design results, and the results of both gaps.
    void removeResults();
    /// Appends a design result, owned.
    void add(SysBase::BeamDesignLocation *location);

    /// Adds displacement lines to the foundation between two relative stations; the manager gives the
    /// foundations. Ignored unless both stations lie in 0 to 1, and without a manager. Marks no change.
    void addFoundation(const KzVector3D &start, double posA, const KzVector3D &end, double posE,
                       VarnelManager *manager);
    void removeFoundations();
    /// Whether the beam or one of its founded parts stands on that very foundation.
    bool checkUsed(const Found::Foundation *foundation) const;

    /// Volume (m3) of the bar between both sections: (A1 + A2 + sqrt(A1 A2)) / 3 times the length, as of a
    /// frustum; a missing section at the end counts as that at the start, a missing one there as 0.
    double getVolumen() const;
    /// Volume times the specific weight of the material (kN); 0 without a material.
    double getWeight() const;

    /// Whether the beam or its axis is changed; joints and gaps are meant not to count.
    virtual bool getChanged() const;
    virtual void setChanged(bool changed);
    /// The record's name; setting it marks no change.
    void setName(const std::string &name) override;
    const std::string &getName() const override;
    void updateMinMax(KzVector3D *min, KzVector3D *max, const KzMatrix44 &matrix) const override;
    int getVisited(VarnelObjectVisitor *visitor) override;
    /// As the axis answers; false without one.
    bool isInPlane(const KzMatrix44 &plane) const override;
    bool touchesPlane(const KzMatrix44 &plane) const override;

  private:
    using Gap = varnel::Held<VarnelGapControl>;

    void replaceGap(Gap &slot, VarnelGapControl *gap);
    VarnelFoundedPart *findFoundedPart(double posA, double posE) const;

    bool changed_ = true;
    double meshSize_ = 0.5;
    Gap leftGap_;
    Gap rightGap_;
    varnel::Held<VarnelBeamGeo> geometry_;
    VarnelBase *base_ = nullptr;
    std::list<VarnelFoundedPart *> foundations_;
    std::list<SysBase::BeamResultState *> resultStates_;
    std::list<VarnelJoint *> joints_;
    varnel::Held<VarnelBeamProperties> data_;
    std::vector<SysBase::BeamDesignLocation *> designResults_;
    bool fireExposed_ = false;
    std::vector<Gap> formerGaps_;
    std::unordered_map<int, SysBase::BeamResultState *> statesByNumber_;  // of resultStates_
};

#endif
