#ifndef VARNEL_MEMBERS_VARNELPLATE_H
#define VARNEL_MEMBERS_VARNELPLATE_H

#include <cstddef>
#include <list>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "varnel/contracts/SysBase/LoadcaseData.h"
#include "varnel/geometry/PlaceTable.h"
#include "varnel/geometry/VarnelPlatePosition.h"
#include "varnel/geometry/VarnelStateObject.h"
#include "varnel/members/VarnelPolyObject.h"

class KzConcrete;
class KzMaterial;
class Varnel;
class VarnelAreaLoad;
class VarnelDesignData;
class VarnelLineBoundaryData;
class VarnelPlateEdgeData;
class VarnelPlateProperties;

namespace Found {
class Foundation;
}
namespace SysBase {
class Loadcase;
}

/// A slab or wall: an outline with properties, the supports and joints of its edges, area loads of its own,
/// and the positions at which results are held.
class VARNEL_EXPORT VarnelPlate : public VarnelPolyObject, public VarnelStateObject {
  public:
    /// The meaning of the numbers is that of the host's mesher and calculator.
    enum Type : int { DefaultType = 0 };
    enum ElementType : int { DefaultElement = 0 };
    enum MeshType : int { DefaultMesh = 2 };

    /// Without an outline until setArea(). The model is shared; null for none.
    explicit VarnelPlate(Varnel *parent);
    /// Outline, properties, type and supports into objects of its own. All else is as in a new plate without
    /// a model.
    VarnelPlate(const VarnelPlate &other);
    /// Properties, type, and supports where this plate has none yet; outline, loads, joints, results, model
    /// and number stay. Answers the argument, not this plate.
    const VarnelPlate &operator=(const VarnelPlate &other);
    ~VarnelPlate() override;

    const VarnelPlateProperties &getData() const { return *data_; }
    /// Assigns; marks no change.
    void setData(const VarnelPlateProperties &data);
    Type getPlateType() const { return plateType_; }
    /// Marks a change of the plate alone.
    void setPlateType(Type type);
    void setPlateType(int type) { setPlateType(static_cast<Type>(type)); }
    Varnel *getParent() const { return parent_; }
    void setParent(Varnel *parent) { parent_ = parent; }
    /// Owned.
    const std::list<VarnelAreaLoad *> &getAreaLoads() const { return areaLoads_; }
    /// Owned; freed by removeResults() and with the plate.
    const std::list<VarnelPlatePosition *> &getResultPositions() const { return resultPositions_; }

    // What is stored in the properties. Thickness and sizes (m) mark a change of the plate alone; the other
    // setters mark one that reaches outline and supports, unless they say otherwise.

    double getThick() const;
    void setThick(double thickness);
    double getMeshSizeX() const;
    void setMeshSizeX(double size);
    double getMeshSizeY() const;
    void setMeshSizeY(double size);
    double getMinMeshSize() const;
    void setMinMeshSize(double size);
    /// Marks no change.
    bool getAutoMeshSize() const;
    void setAutoMeshSize(bool automatic);
    ElementType getElementType() const;
    void setElementType(ElementType type);
    void setElementType(int type) { setElementType(static_cast<ElementType>(type)); }
    MeshType getMeshType() const;
    void setMeshType(MeshType type);
    void setMeshType(int type) { setMeshType(static_cast<MeshType>(type)); }
    /// As the mesher takes it.
    double getMeshAngle() const;
    void setMeshAngle(double angle);
    /// The material, shared; the number is ignored. Marks no change.
    KzMaterial *getMaterial(int index) const;
    void setMaterial(KzMaterial *material, int index);
    /// The material if it is a concrete, else null.
    KzConcrete *getConcrete(int index) const;
    /// Bedding of the whole plate, shared. Marks a change if it differs.
    Found::Foundation *getFoundation() const;
    void setFoundation(Found::Foundation *foundation);
    /// Owned by the properties. Setting copies the record; null removes it.
    VarnelDesignData *getDesign() const;
    void setDesign(const VarnelDesignData *design);

    // Edges: an index is that of a line of the outline; setters ignore any other, and all of them without an
    // outline.

    /// Puts a copy of the record on an edge that nothing is known of yet, not even a joint.
    void setBoundary(std::size_t edge, const VarnelLineBoundaryData &boundary);
    /// Makes the edge's support if it is missing and sets its degrees of freedom, springs (see
    /// VarnelBoundaryData::setStiffness) and, unless null, its name.
    void setBoundary(std::size_t edge, int dof, const std::vector<double> &stiffness, const char *name);
    /// Bit mask of the degrees of freedom released at the edge.
    void setEdgeJoint(std::size_t edge, int joint);
    /// Null for an edge that nothing is known of.
    VarnelPlateEdgeData *getEdgeData(std::size_t edge) const;
    /// Null for an edge without a support.
    VarnelLineBoundaryData *getBoundary(std::size_t edge) const;
    /// The record that stands for the edge's support: its reference or itself. Null without a support.
    VarnelLineBoundaryData *getBoundaryReference(std::size_t edge) const;
    /// Makes corner k of the outline the first one; what is known of edges moves among the edges that
    /// something is known of. A negative k leaves the edges alone.
    void cycle(int k);
    /// Reverses the outline and what is known of its edges.
    void swap();

    /// Takes the load over, which nobody may own yet, and marks a change of the plate alone.
    void add(VarnelAreaLoad *load);
    /// The load passes to the caller. Marks no change.
    void remove(VarnelAreaLoad *load);
    /// The first load of the type and, unless null, of the load case; null without one.
    VarnelAreaLoad *findAreaLoad(SysBase::LoadcaseData::Type type, SysBase::Loadcase *loadcase) const;
    /// The same, made on the plate's outline if it is missing.
    VarnelAreaLoad *giveAreaLoad(SysBase::LoadcaseData::Type type, SysBase::Loadcase *loadcase);

    /// Takes the position over, which no plate may own yet.
    void add(VarnelPlatePosition *position);
    /// The first position at exactly these coordinates, or null.
    VarnelPlatePosition *findPlatePosition(double x, double y, double z) const;

    /// The name; without one "PL" and the number, filled up with zeros to three characters.
    std::string getGroupName() const;
    /// Area of the outline times thickness (m3); 0 without an outline.
    double getVolumen() const;
    /// Volume times density (kg); 0 without a material.
    double getWeight() const;

    void updateMinMax(KzVector3D *min, KzVector3D *max, const KzMatrix44 &matrix) const override;
    int getVisited(VarnelObjectVisitor *visitor) override;
    using VarnelPolyObject::getChanged;
    /// Outline, supports of the first edges (as many as edges are known) and the plate.
    void setChanged(bool changed) override;
    /// Whether the plate, its outline or one of the supports was changed; the const form asks the outline
    /// only. Of n known edges only the supports of edges 0 to n - 1 are asked.
    virtual bool getChanged();
    /// The position at exactly these coordinates, made if it is missing.
    virtual VarnelPlatePosition *giveResultPosition(double x, double y, double z);
    /// Frees all result positions.
    virtual void removeResults();
    /// "Platte " and the number.
    virtual void setDefaultName();
    /// Tells the model, which keeps an index of names. Marks no change.
    void setName(const std::string &name) override;
    const std::string &getName() const override;

  private:
    bool hasLine(std::size_t edge) const;
    VarnelPlateEdgeData &giveEdgeData(std::size_t edge);

    bool changed_ = true;
    std::unique_ptr<VarnelPlateProperties> data_;
    Type plateType_ = DefaultType;
    std::map<std::size_t, VarnelPlateEdgeData *> edges_;
    Varnel *parent_;
    std::list<VarnelAreaLoad *> areaLoads_;
    std::list<VarnelPlatePosition *> resultPositions_;
    mutable varnel::PlaceTable<VarnelPlatePosition> places_;  // finds result positions
};

#endif
