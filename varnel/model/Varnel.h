#ifndef VARNEL_MODEL_VARNEL_H
#define VARNEL_MODEL_VARNEL_H

#include <list>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "varnel/contracts/Export.h"
#include "varnel/contracts/KzVector3D.h"
#include "varnel/model/DesignDataIndex.h"
#include "varnel/model/KeyedList.h"
#include "varnel/model/PointList.h"
#include "varnel/model/PointerList.h"

class KzMaterial;
class KzMatrix44;
class KzReinfStockMesh;
class SDBSection;
class VarnelArea;
class VarnelAreaLoad;
class VarnelAreaPolygon;
class VarnelAreaRectangle;
class VarnelAttributeArea;
class VarnelBeam;
class VarnelBeamGeo;
class VarnelBeamLoad;
class VarnelConstructionStage;
class VarnelDatabaseFactory;
class VarnelDesignData;
class VarnelGap;
class VarnelHole;
class VarnelLine;
class VarnelLineBoundary;
class VarnelLineBoundaryData;
class VarnelLineLoad;
class VarnelLoadDistributionArea;
class VarnelManager;
class VarnelObject;
class VarnelObjectGroup;
class VarnelPlate;
class VarnelPoint;
class VarnelPointBoundary;
class VarnelPointBoundaryCircle;
class VarnelPointBoundaryRectan;
class VarnelPointLoad;
class VarnelRefinePolygon;
class VarnelResultSection;
struct VarnelSetupHelper;
namespace Found {
class Foundation;
}
namespace Standard {
enum BuildingType : int;
enum Classification : int;
enum DesignMaterial : int;
enum DesignSituation : int;
enum Mode : int;
}  // namespace Standard
namespace SysBase {
class Loadcase;
}

/// The model of one subsystem. It owns its objects, one list per kind in the order in which they were added,
/// and knows whether the structure or the loads changed. Lists may hold null entries, which are skipped.
/// Copies of a model, by constructor or assignment, are views: they list the same objects and never delete,
/// neither these nor what is added to them later. The deep copy is copy().
class VARNEL_EXPORT Varnel {
  public:
    /// Chosen by the factory; stored for the host.
    enum SystemMode : int {};
    /// How far the analysis got.
    enum SystemStatus : int { NothingDone = 0, Converted = 1, ResultsTakenOver = 3 };

    /// The manager is shared and may be null. Opens the material database; an error of that is dropped.
    explicit Varnel(VarnelManager *manager);
    Varnel(const Varnel &other);
    /// Becomes a view of the other model. What this model owned lives on until it dies, since the other one
    /// may be a view of it.
    Varnel &operator=(const Varnel &other);

    // Accessors. None of the setters marks a change unless it says so.

    VarnelDatabaseFactory *getDBaseFactory() const { return dBaseFactory_.get(); }
    /// Also the name of the subsystem. A null pointer counts as "".
    const std::string &getDescription() const { return description_.get(); }
    void setDescription(const std::string &description) { description_.set(description); }
    void setDescription(const char *description) { description_.set(description ? description : ""); }
    /// For the list that finds a subsystem by its name.
    const varnel::IndexedKey<std::string> &indexedDescription() const { return description_; }
    SystemMode getSystemMode() const { return systemMode_; }
    void setSystemMode(SystemMode mode) { systemMode_ = mode; }
    void setSystemMode(int mode) { systemMode_ = static_cast<SystemMode>(mode); }
    /// The status only grows; removeAll() alone puts it back.
    SystemStatus getCurrentStatus() const { return currentStatus_; }
    void setCurrentStatus(SystemStatus status) {
        if (status > currentStatus_) currentStatus_ = status;
    }
    void setCurrentStatus(int status) { setCurrentStatus(static_cast<SystemStatus>(status)); }
    int getNumberOfBeamLocations() const { return numberOfBeamLocations_; }
    void setNumberOfBeamLocations(int number) { numberOfBeamLocations_ = number; }
    /// Gravity (m/s2). Setting it marks a change of loads.
    const KzVector3D &getAcceleration() const { return acceleration_; }
    void setAcceleration(const KzVector3D &acceleration);
    VarnelManager *getManager() const { return manager_; }

    const std::list<VarnelPointBoundary *> &getPointBoundaries() const { return pointBoundaries_.list(); }
    const std::list<VarnelLineBoundary *> &getLineBoundaries() const { return lineBoundaries_.list(); }
    /// The data of all line boundaries and of all edges of plates; null for an edge without a boundary.
    const std::list<VarnelLineBoundaryData *> &getLineBoundaryDatas() const { return lineBoundaryDatas_; }
    const std::list<VarnelBeam *> &getBeams() const { return beams_.list(); }
    const std::list<VarnelLine *> &getLines() const { return lines_.list(); }
    const std::list<VarnelPlate *> &getPlates() const { return plates_.list(); }
    /// Whether there is any plate; also copies the list, unless `out` is null.
    bool getPlates(std::list<VarnelPlate *> *out) const;
    const std::list<VarnelHole *> &getHoles() const { return holes_.list(); }
    /// The numbered system points, made anew by setupNumbers().
    const std::list<VarnelPoint *> &getPoints() const { return points_.list(); }
    const std::list<VarnelGap *> &getGaps() const { return gaps_.list(); }
    const std::list<VarnelLoadDistributionArea *> &getLoadDistributionAreas() const {
        return loadDistributionAreas_.list();
    }
    const std::list<VarnelPointLoad *> &getPointLoads() const { return pointLoads_.list(); }
    const std::list<VarnelLineLoad *> &getLineLoads() const { return lineLoads_.list(); }
    const std::list<VarnelAreaLoad *> &getAreaLoads() const { return areaLoads_.list(); }
    const std::list<VarnelBeamLoad *> &getBeamLoads() const { return beamLoads_.list(); }
    const std::list<VarnelDesignData *> &getDesignParameters() const { return designParameters_.list(); }
    const std::list<VarnelRefinePolygon *> &getRefinePolygons() const { return refinePolygons_.list(); }
    const std::list<VarnelAttributeArea *> &getAttributeAreas() const { return attributeAreas_.list(); }
    const std::list<VarnelResultSection *> &getResultSections() const { return resultSections_.list(); }
    const std::list<VarnelObjectGroup *> &getObjectGroups() const { return objectGroups_.list(); }

    // Change flags. Each asks the objects of its kind and the model's own flag.

    bool systemChanged() const;
    bool loadChanged() const;
    bool getChanged() const;
    /// Hands the flag to the objects and takes it over; gaps keep theirs, so one changed gap keeps the
    /// structure changed.
    void setSystemChanged(bool changed);
    void setLoadChanged(bool changed);
    void setChanged(bool changed);

    // Making objects. Those that are added belong to the model, the others to the caller until he adds them.
    // "Next number": one more than the highest in the list. Null from a model without a database factory
    // where that is needed: plates, beams and result sections.

    /// The system point at these coordinates, made if absent with the number of points + 1. No flag.
    VarnelPoint *givePoint(const KzVector3D &coordinates);
    /// With the next number and its default name, whose look-up knows the plate also if it is not added.
    VarnelPlate *givePlate(bool add);
    VarnelBeam *giveBeam(bool add);
    /// Not added.
    VarnelBeam *giveBeam(const KzVector3D &start, const KzVector3D &end);
    /// Without a number, not added.
    VarnelHole *giveHole();
    VarnelLoadDistributionArea *giveLoadDistributionArea();
    /// Without a number, added: a support with fixed degrees of freedom (mask), plain, or on a column of a
    /// diameter or with two sides (m).
    VarnelPointBoundary *givePointBoundary(const KzVector3D &coordinates, int dof);
    VarnelPointBoundaryCircle *givePointBoundaryCircle(const KzVector3D &coordinates, int dof, double d);
    VarnelPointBoundaryRectan *givePointBoundaryRectan(const KzVector3D &coordinates, int dof, double b,
                                                       double d);
    /// With the next number, added. A line load takes over its line.
    VarnelPointLoad *givePointLoad();
    VarnelLineLoad *giveLineLoad(VarnelLine *line);
    VarnelAreaLoad *giveAreaLoad();
    VarnelBeamLoad *giveBeamLoad();
    VarnelAttributeArea *giveAttributeArea();
    /// The number that giveAttributeArea() would give, for a reader that makes the area itself.
    int nextAttributeAreaNumber() const;
    /// Without a number, added.
    VarnelGap *giveGap();
    /// With the length of the list + 1 as number, not added.
    VarnelResultSection *giveResultSection(const KzVector3D &p1, const KzVector3D &p2);
    /// A new default record, added.
    VarnelDesignData *giveDesignData();
    /// The first equal record, else a new one, added.
    VarnelDesignData *giveDesignData(const VarnelDesignData &pattern);
    /// The first record with exactly these values (rad, m), else a new one, added.
    VarnelDesignData *giveDesignData(double theta, double coverXu, double coverYu, double coverXl,
                                     double coverYl);
    /// The group of that name, else a new one, which is not added.
    VarnelObjectGroup *giveObjectGroup(const std::string &name);
    /// Outlines for the caller; each call marks a change of the structure, though nothing is added.
    VarnelArea *giveArea();
    VarnelAreaRectangle *giveAreaRectangle();
    VarnelAreaRectangle *giveAreaRectangle(const KzVector3D &position, double width, double height,
                                           double angle);
    VarnelAreaRectangle *giveAreaRectangle(const KzVector3D &p1, const KzVector3D &p2, const KzVector3D &p3,
                                           const KzVector3D &p4);
    VarnelAreaPolygon *giveAreaPolygon();
    VarnelAreaPolygon *giveAreaPolygon(const std::vector<KzVector3D> &points);

    // Adding. The model owns what it is given and marks a change, of loads for loads, else of the structure.
    // An object that is owned already must not be added again.

    void add(VarnelLine *line);
    /// Also registers the name, and the boundaries that the edges have at this moment.
    void add(VarnelPlate *plate);
    void add(VarnelBeam *beam);
    void add(VarnelHole *hole);
    void add(VarnelPointBoundary *boundary);
    void add(VarnelLineBoundary *boundary);
    /// Only lists the record, which is shared.
    void add(VarnelLineBoundaryData *data);
    void add(VarnelRefinePolygon *polygon);
    /// A group is listed once, however often it is added.
    void add(VarnelObjectGroup *group);
    void add(VarnelResultSection *section);
    /// These two are meant to mark no change.
    void add(VarnelAttributeArea *area);
    void add(VarnelLoadDistributionArea *area);
    void add(VarnelAreaLoad *load);
    void add(VarnelBeamLoad *load);
    void add(VarnelPointLoad *load);
    void add(VarnelLineLoad *load);
    /// Into the plate's own loads.
    void add(VarnelPlate *plate, VarnelAreaLoad *load);

    // Removing. Takes the object out of its list and of all groups, marks a change, also if the object was
    // not there, and deletes it if asked (a view never deletes); else the object passes to the caller.

    void remove(VarnelLine *line, bool destroy);
    /// Also drops the plate's name, even if a namesake has it now, and its edges' boundaries.
    void remove(VarnelPlate *plate, bool destroy);
    /// Does nothing at all, by design.
    void remove(VarnelArea *area, bool destroy);
    void remove(VarnelBeam *beam, bool destroy);
    void remove(VarnelHole *hole, bool destroy);
    void remove(VarnelPointBoundary *boundary, bool destroy);
    void remove(VarnelLineBoundary *boundary, bool destroy);
    void remove(VarnelAttributeArea *area, bool destroy);
    void remove(VarnelLoadDistributionArea *area, bool destroy);
    void remove(VarnelAreaLoad *load, bool destroy);
    void remove(VarnelBeamLoad *load, bool destroy);
    void remove(VarnelPointLoad *load, bool destroy);
    void remove(VarnelLineLoad *load, bool destroy);
    /// Never deletes: the gap passes to the caller.
    void remove(VarnelGap *gap);
    void remove(VarnelResultSection *section, bool destroy);
    void remove(VarnelRefinePolygon *polygon, bool destroy);
    /// The group's members stay in the model.
    void remove(VarnelObjectGroup *group, bool destroy);
    void removeFromObjectGroups(VarnelObject *object);
    /// Takes the loads of a case (null: of no case) out of the model. They are never deleted, whatever
    /// `destroy` says, and pass to the caller.
    void removeLoadsToLoadcase(bool destroy, const SysBase::Loadcase *loadcase);
    /// For a derived model; does nothing.
    void removeFromConstructionStage(VarnelPlate *plate);
    /// Results of plates and beams; object groups keep theirs.
    void removeResults();
    /// Deletes the design data; marks no change.
    void removeSettings();
    /// Deletes the point boundaries, which leave their groups; marks no change, of the groups neither.
    void removePointBoundaries();

    // Counting: lengths of the lists.

    int getNumberOfPoints() const;
    int getNumberOfPlates() const;
    int getNumberOfBeams() const;
    int getNumberOfHoles() const;
    int getNumberOfPointLoads() const;
    int getNumberOfLineLoads() const;
    int getNumberOfAreaLoads() const;
    int getNumberOfBeamLoads() const;
    int getNumberOfPointBoundaries() const;
    int getNumberOfLineBoundaries() const;
    int getNumberOfBeamJoints() const;
    /// Edges with a boundary that represents its line and is fixed like a wall, and all line boundaries.
    int getNumberOfWalls() const;
    int getNumberOfPointLoadsToLoadcase(const SysBase::Loadcase *loadcase) const;
    int getNumberOfLineLoadsToLoadcase(const SysBase::Loadcase *loadcase) const;
    int getNumberOfAreaLoadsToLoadcase(const SysBase::Loadcase *loadcase) const;
    /// Among the plate's own loads; 0 without a plate.
    int getNumberOfPlateLoadsToLoadcase(const SysBase::Loadcase *loadcase, VarnelPlate *plate) const;

    // Finding: the first in list order or null; names compare exactly, coordinates too.

    /// For beams, line boundary data, object groups, plates and point boundaries.
    template <class T>
    T *findToName(const std::string &name) const;
    /// For loads of all kinds, attribute areas, beams, holes, line boundaries, plates and point boundaries.
    template <class T>
    T *findToNumber(int number) const;
    VarnelBeam *findBeamToName(const std::string &name) const;
    VarnelPlate *findPlateToName(const std::string &name) const;
    VarnelPointBoundary *findPointBoundaryToName(const std::string &name) const;
    VarnelObjectGroup *findObjectGroupToName(const std::string &name) const;
    VarnelLineBoundaryData *findLineBoundaryToName(const std::string &name) const;
    VarnelPointLoad *findPointLoadToName(const std::string &name, bool dead) const;
    VarnelLineLoad *findLineLoadToName(const std::string &name, bool dead) const;
    VarnelAreaLoad *findAreaLoadToName(const std::string &name, bool dead) const;
    VarnelBeamLoad *findBeamLoadToName(const std::string &name, bool dead) const;
    VarnelPoint *findPointToNumber(int number) const;
    VarnelPlate *findPlateToNumber(int number) const;
    VarnelBeam *findBeamToNumber(int number) const;
    VarnelAttributeArea *findAttributeAreaToNumber(int number) const;
    VarnelPointBoundary *findPointBoundaryToNumber(int number) const;
    VarnelPointLoad *findPointLoadToNumber(int number) const;
    VarnelLineLoad *findLineLoadToNumber(int number) const;
    VarnelAreaLoad *findAreaLoadToNumber(int number) const;
    VarnelBeamLoad *findBeamLoadToNumber(int number) const;
    VarnelHole *findHoleToNumber(int number) const;
    VarnelLineBoundary *findLineBoundaryToNumber(int number) const;
    VarnelPoint *findPoint(const KzVector3D &coordinates) const;
    VarnelPointLoad *findPointLoad(const KzVector3D &coordinates, bool dead) const;
    /// The first plate whose outline has the place inside.
    VarnelPlate *findPlateToCoor(const KzVector3D &coordinates) const;
    VarnelPlate *findPlateToGeo(const VarnelArea *area) const;
    VarnelHole *findHoleToGeo(const VarnelArea *area) const;
    VarnelLoadDistributionArea *findLoadDistributionAreatoArea(const VarnelArea *area) const;
    VarnelBeam *findBeamToGeo(const VarnelBeamGeo *geometry) const;
    VarnelAreaLoad *findAreaLoadToAreaAndLC(const VarnelArea *area, const SysBase::Loadcase *loadcase) const;
    VarnelLineLoad *findLineLoadToLineAndLC(const VarnelLine *line, const SysBase::Loadcase *loadcase) const;
    VarnelPointLoad *findPointLoadToPointAndLC(const VarnelPoint *point,
                                               const SysBase::Loadcase *loadcase) const;
    /// The record of the first line with the same ends that has a boundary: edges of plates, then line
    /// boundaries.
    VarnelLineBoundaryData *findLineBoundaryToLine(const VarnelLine *line) const;

    // Asking.

    /// From the look-up of names, which outlives removed plates; see updatePlateName().
    bool hasPlatewithName(const std::string &name) const;
    bool hasObjectGroup(VarnelObjectGroup *group) const;
    bool contains(const VarnelPlate *plate) const;
    /// Knows beams and plates only. Compares addresses: the object may be gone.
    bool contains(const VarnelObject *object) const;
    /// Whether a plate's design data name this mesh.
    bool check(const KzReinfStockMesh *mesh);
    /// Widens the box by points, lines, beams, plates and holes; nothing if one of the pointers is null.
    void getMinMax(KzVector3D *min, KzVector3D *max) const;
    /// The same with coordinates that are local to a frame.
    void updateMinMax(KzVector3D *min, KzVector3D *max, const KzMatrix44 &frame) const;

    // Deriving.

    /// Drops the old name and lets the new one stand for this plate.
    void updatePlateName(const std::string &newName, const std::string &oldName, VarnelPlate *plate);
    /// Shared; listed once.
    void addGeneratedSection(SDBSection *section);
    /// Lets all boundaries on one line refer to the first of them.
    void setupBoundaryReferences();
    /// Gives the result positions of plates the numbers of system points.
    void setupResultLocations();
    /// Does nothing: load cases are the manager's work.
    void setupLoads();
    /// Moves supports and loads that nearly meet beams, supports or loads onto them. The first near place in
    /// list order counts, not the nearest. Nothing is deleted or numbered.
    void mergePointsInVarnelObjects();

    /// Deletes results and all objects.
    virtual ~Varnel();
    /// Deletes all objects, marks both changes and puts the status back. Names of plates, description,
    /// gravity and generated sections stay.
    virtual void removeAll();
    /// Numbers all objects, names nameless line boundaries and makes the system points anew. The helper's
    /// counters run on through several models.
    virtual void setupNumbers(VarnelSetupHelper &helper);
    /// For a derived model; does nothing.
    virtual void updateSections();
    /// Replaces the stage's states by the present ones of beams, plates, point boundaries, point loads and
    /// line loads. Null is ignored.
    virtual void storeCurrentCSTProperties(VarnelConstructionStage *stage);
    /// Appends deep copies of the source's beams, plates, holes, boundaries and loads, with their numbers;
    /// resources and load cases are shared. Takes over factory, gravity and number of beam locations.
    virtual void copy(const Varnel &source);
    /// Called once after the model was made, for a derived model; does nothing.
    virtual void initInstance();

    // The design standard, for a derived model: constant answers and setters without effect.

    virtual Standard::Mode getStandardMode() const;
    virtual void setStandardMode(Standard::Mode mode);
    virtual Standard::DesignSituation getSituation() const;
    virtual void setSituation(Standard::DesignSituation situation);
    virtual Standard::BuildingType getBuildingType() const;
    virtual void setBuildingType(Standard::BuildingType type);
    virtual Standard::DesignMaterial getDesignMaterial() const;
    virtual void setDesignMaterial(Standard::DesignMaterial material);
    virtual Standard::Classification getClassification() const;
    virtual void setClassification(Standard::Classification classification);

    /// Whether a beam or plate stands on the foundation.
    virtual bool check(const Found::Foundation *foundation);
    /// Whether a beam or plate is of the material.
    virtual bool check(const KzMaterial *material);
    /// Whether a beam has the section, which only counts for line sections, or it was generated here.
    virtual bool check(const SDBSection *section);

  protected:
    void add(VarnelGap *gap);
    void setDBaseFactory(std::shared_ptr<VarnelDatabaseFactory> factory);

    /// Number all ends of an outline or line, or one point, from the system points. Null is ignored.
    virtual void setupNumbersOfAreaPoints(const VarnelArea *area);
    virtual void setupNumbersOfLinePoints(const VarnelLine *line);
    virtual void setupNumbersOfPoint(const VarnelPoint *point);

  private:
    class Numbering;

    template <class List, class T>
    void takeOut(List &list, T *object, bool destroy, bool &changed);
    template <class List, class T>
    void takeOutUngrouped(List &list, T *object, bool destroy);
    template <class List>
    void takeOutLoads(List &list, const SysBase::Loadcase *loadcase);
    template <class List>
    void dispose(List &list);
    void disposeDesignData();
    void disposeRefinePolygons();
    bool hasOutline(const VarnelArea *outline) const;
    VarnelDesignData *adopt(std::unique_ptr<VarnelDesignData> data);
    void listBoundary(VarnelLineBoundaryData *data);
    void unlistBoundary(VarnelLineBoundaryData *data);
    void unlistAllBoundaries();
    void exchangeObjects(Varnel &other);
    void assign(const Varnel &other);

    bool systemChanged_ = false;
    std::shared_ptr<VarnelDatabaseFactory> dBaseFactory_;
    std::map<std::string, VarnelPlate *> plateNames_;
    varnel::IndexedKey<std::string> description_;
    double modelFactor_ = 1.0;
    SystemMode systemMode_ = static_cast<SystemMode>(0);
    SystemStatus currentStatus_ = NothingDone;
    int numberOfBeamLocations_ = 5;
    KzVector3D acceleration_{0.0, 0.0, 9.81};
    varnel::NumberedList<VarnelPointBoundary> pointBoundaries_;
    varnel::NumberedList<VarnelLineBoundary> lineBoundaries_;
    std::list<VarnelLineBoundaryData *> lineBoundaryDatas_;
    varnel::NumberedList<VarnelBeam> beams_;
    varnel::PointerList<VarnelLine> lines_;
    varnel::NumberedList<VarnelPlate> plates_;
    varnel::NumberedList<VarnelHole> holes_;
    varnel::PointList points_;
    varnel::PointerList<VarnelGap> gaps_;
    bool loadChanged_ = false;
    varnel::PointerList<VarnelLoadDistributionArea> loadDistributionAreas_;
    varnel::NumberedList<VarnelPointLoad> pointLoads_;
    varnel::NumberedList<VarnelLineLoad> lineLoads_;
    varnel::NumberedList<VarnelAreaLoad> areaLoads_;
    varnel::NumberedList<VarnelBeamLoad> beamLoads_;
    varnel::PointerList<VarnelDesignData> designParameters_;
    varnel::PointerList<VarnelRefinePolygon> refinePolygons_;
    varnel::NumberedList<VarnelAttributeArea> attributeAreas_;
    varnel::PointerList<VarnelResultSection> resultSections_;
    varnel::NamedObjects<VarnelObjectGroup> objectGroups_;
    VarnelManager *manager_;
    std::vector<SDBSection *> generatedSections_;
    std::vector<std::list<VarnelLineBoundaryData *>::iterator>
        emptyEdges_;                           // null entries of lineBoundaryDatas_
    varnel::DesignDataIndex designDataIndex_;  // of designParameters_
    bool view_ = false;
    std::unique_ptr<Varnel> former_;  // what this model owned before it became a view
};

// Each forwards to the operation that names the kind.
template <>
VARNEL_EXPORT VarnelBeam *Varnel::findToName(const std::string &name) const;
template <>
VARNEL_EXPORT VarnelLineBoundaryData *Varnel::findToName(const std::string &name) const;
template <>
VARNEL_EXPORT VarnelObjectGroup *Varnel::findToName(const std::string &name) const;
template <>
VARNEL_EXPORT VarnelPlate *Varnel::findToName(const std::string &name) const;
template <>
VARNEL_EXPORT VarnelPointBoundary *Varnel::findToName(const std::string &name) const;
template <>
VARNEL_EXPORT VarnelAreaLoad *Varnel::findToNumber(int number) const;
template <>
VARNEL_EXPORT VarnelAttributeArea *Varnel::findToNumber(int number) const;
template <>
VARNEL_EXPORT VarnelBeam *Varnel::findToNumber(int number) const;
template <>
VARNEL_EXPORT VarnelBeamLoad *Varnel::findToNumber(int number) const;
template <>
VARNEL_EXPORT VarnelHole *Varnel::findToNumber(int number) const;
template <>
VARNEL_EXPORT VarnelLineBoundary *Varnel::findToNumber(int number) const;
template <>
VARNEL_EXPORT VarnelLineLoad *Varnel::findToNumber(int number) const;
template <>
VARNEL_EXPORT VarnelPlate *Varnel::findToNumber(int number) const;
template <>
VARNEL_EXPORT VarnelPointBoundary *Varnel::findToNumber(int number) const;
template <>
VARNEL_EXPORT VarnelPointLoad *Varnel::findToNumber(int number) const;

#endif
