#ifndef VARNEL_EXCHANGE_VARNELEXCHANGEXML_H
#define VARNEL_EXCHANGE_VARNELEXCHANGEXML_H

#include <list>
#include <memory>
#include <string>

#include "varnel/exchange/VarnelExchangeXmlBase.h"

class KzConcrete;
class KzMaterial;
class KzMaterialManager;
class KzMaterialReinforcement;
class KzXmlData;
class KzXmlTree;
class Varnel;
class VarnelArea;
class VarnelAreaLoad;
class VarnelAreaPolygon;
class VarnelAreaRectangle;
class VarnelBeam;
class VarnelBeamState;
class VarnelBoundaryData;
class VarnelBoundaryStiffnessData;
class VarnelConstructionStage;
class VarnelDesignData;
class VarnelExchangeXmlBeam;
class VarnelHole;
class VarnelLine;
class VarnelLineBoundary;
class VarnelLineBoundaryData;
class VarnelLineHolder;
class VarnelLineLoad;
class VarnelLineLoadData;
class VarnelLoad;
class VarnelLoadDistributionArea;
class VarnelObjectGroup;
class VarnelObjectState;
class VarnelPlate;
class VarnelPlateState;
class VarnelPointBoundary;
class VarnelPointLoad;
class VarnelPolyline;
class VarnelSubSystem;

namespace SysBase {
class Loadcase;
}
namespace varnel {
class StateObjects;
}

/// The project document: writers named update... bring the tree up to the model, readers named create... and
/// read... build the model from the tree. Lists are rebuilt on writing; elements that no writer knows survive
/// outside of them. Readers take what they find: what is missing leaves the model's defaults. A host
/// overrides the virtual operations for what it adds to a kind of object.
class VARNEL_EXPORT VarnelExchangeXml : public VarnelExchangeXmlBase {
  public:
    VarnelExchangeXml();
    ~VarnelExchangeXml() override;

    /// The document's tree; owned by the exchange.
    KzXmlTree *getTree() const { return &tree(); }

    void get(VarnelManager *manager) override;
    void updateResults(VarnelManager *manager) override;
    void updateSystem(VarnelManager *manager) override;
    void loadProjectSettings(const std::string &path) override;
    void saveProjectSettings(const std::string &path) override;
    void updateSettings(VarnelManager *manager) override;

    /// The whole tree into the manager's model. Throws Tools::Error for an unknown material and for a stage
    /// that refers to an object that is not there; what has been read by then stays in the model.
    virtual void treeToDatabase();
    /// The exchange of beams, made on the first call; owned.
    virtual VarnelExchangeXmlBeam *getExchangeBeam();
    virtual void updateOneSubSystem(VarnelSubSystem *subSystem);
    virtual void updateOneObjectState(VarnelObjectState *state);
    virtual void updateOnePlateState(VarnelPlateState *state);
    virtual void updateOneBeamState(VarnelBeamState *state);
    virtual void updateOneConstructionStage(VarnelConstructionStage *stage);
    virtual void updateOneHole(Varnel *model, VarnelHole *hole);
    virtual void updateOnePlate(Varnel *model, VarnelPlate *plate);
    virtual void updateOnePointBoundary(Varnel *model, VarnelPointBoundary *boundary);
    virtual void updateOneLineBoundary(Varnel *model, VarnelLineBoundary *boundary);
    virtual void updateOneLoadcase(VarnelManager *manager, SysBase::Loadcase *loadcase);
    virtual void updateOnePointLoad(Varnel *model, VarnelPointLoad *load);
    virtual void updateOneLineLoad(Varnel *model, VarnelLineLoad *load);
    virtual void updateOneAreaLoad(Varnel *model, VarnelAreaLoad *load);
    virtual void updateResultsToSubSystem(VarnelSubSystem *subSystem);
    virtual void updateOneLineBoundaryResult(Varnel *model, VarnelLineBoundaryData *boundary);
    virtual void loadProjectSettings(KzXmlData *root);
    virtual void updateOneObjectGroup(Varnel *model, VarnelObjectGroup *group);
    virtual void createSettings(KzXmlData *root);
    virtual VarnelConstructionStage *createOneConstructionStage(KzXmlData *element,
                                                                VarnelSubSystem *subSystem);
    virtual VarnelPlate *createOnePlate(KzXmlData *element, Varnel *model);
    virtual VarnelBeamState *createOneBeamState(VarnelConstructionStage *stage, VarnelBeam *beam,
                                                KzXmlData *element);
    virtual VarnelPlateState *createOnePlateState(VarnelConstructionStage *stage, VarnelPlate *plate,
                                                  KzXmlData *element, Varnel *model);
    virtual void createOneSubSystem(KzXmlData *element, VarnelSubSystem *subSystem);
    virtual VarnelPointBoundary *createOnePointBoundary(KzXmlData *element, Varnel *model);
    virtual VarnelLineBoundary *createOneLineBoundary(KzXmlData *element, Varnel *model);
    virtual VarnelHole *createOneHole(KzXmlData *element, Varnel *model);
    virtual VarnelPointLoad *createOnePointLoad(KzXmlData *element, Varnel *model);
    virtual VarnelLineLoad *createOneLineLoad(KzXmlData *element, Varnel *model);
    virtual VarnelAreaLoad *createOneAreaLoad(KzXmlData *element, Varnel *model);
    virtual VarnelObjectGroup *createOneObjectGroup(KzXmlData *element, Varnel *model);
    virtual VarnelLoadDistributionArea *createOneLoadDistributionArea(KzXmlData *element, Varnel *model);
    virtual SysBase::Loadcase *createOneLoadcase(KzXmlData *element, VarnelManager *manager);
    /// Runs last in updateSystem() with the root subsystem; nothing here.
    virtual void updateThumbnail(VarnelSubSystem *subSystem);

    // Resources and layout.

    void updateMaterials(VarnelManager *manager);
    void updateSections(VarnelManager *manager);
    void updateDesignMeshes(VarnelManager *manager);
    void updateDesigns(VarnelManager *manager);
    void updateFoundations(VarnelManager *manager);
    void updateSubSystems(const std::list<VarnelSubSystem *> &children);
    void readStandard(KzXmlData *root);
    void createMaterialList(KzXmlData *root);
    void createSections(KzXmlData *root);
    void createDesignMeshes(KzXmlData *root);
    void createDesigns(KzXmlData *root);
    void createFoundations(KzXmlData *root);
    void createSubSystems(KzXmlData *element, VarnelSubSystem *parent);

    // Geometry.

    /// "RECTAN" for a rectangle, else "AREA"; nothing for null.
    void updateArea(VarnelLineHolder *holder);
    /// A straight line as "LINE", an arc by its parts; nothing for null.
    void updateOneLine(VarnelLine *line);
    /// The outline from "AREA", "RECTAN" or "POLY", which passes to the caller, or null. With `holderOnly` an
    /// "AREA" becomes a VarnelBeamGeo.
    VarnelLineHolder *readOneArea(KzXmlData *element, Varnel *model, bool holderOnly);
    void getAreaPolygon(KzXmlData *areaElement, Varnel *model, VarnelLineHolder *holder);
    VarnelAreaPolygon *getPolygon(KzXmlData *polyElement, Varnel *model);
    VarnelAreaRectangle *getAreaRectangle(KzXmlData *rectanElement, Varnel *model);
    /// Passes to the caller.
    VarnelPolyline *getPolyline(KzXmlData *element);
    void updatePoints(Varnel *model);
    void updateLines(Varnel *model);

    // Plates and design data.

    void updatePlates(Varnel *model);
    void createPlates(KzXmlData *element, Varnel *model);
    /// Throws Tools::Error for an unknown material.
    void readOnePlate(KzXmlData *element, VarnelPlate *plate);
    void readPlateFound(KzXmlData *element, VarnelPlate *plate);
    void createBoundariesToPlate(VarnelPlate *plate, KzXmlData *boundsElement);
    void createAreaLoadsToPlate(VarnelPlate *plate, KzXmlData *element);
    void updateDesignData(const VarnelDesignData *data);
    /// Throws Tools::Error for an unknown reinforcement.
    void readDesignData(KzXmlData *element, VarnelDesignData *data);

    // Holes and other areas.

    void updateHoles(Varnel *model);
    void updateAttributeAreas(Varnel *model);
    void updateGaps(Varnel *model);
    void updateLoadDistributionAreas(Varnel *model);
    void updateOneLoadDistributionArea(VarnelLoadDistributionArea *area);
    void readOneHole(KzXmlData *element, VarnelHole *hole);
    void readOneLoadDistributionArea(KzXmlData *element, VarnelLoadDistributionArea *area);
    void createAttributeAreas(KzXmlData *element, Varnel *model);
    void createRefinePolygons(KzXmlData *element, Varnel *model);
    void createLoadDistributionAreas(KzXmlData *element, Varnel *model);
    void createGaps(KzXmlData *element, Varnel *model);

    // Supports.

    void updatePointBoundaries(Varnel *model);
    void updateLineBoundaries(Varnel *model);
    void updateOneLineBoundaryData(const VarnelLineBoundaryData *data);
    void updateOneStiffnessData(const VarnelBoundaryStiffnessData *data);
    void updateOneOwnWeightTransferData(const VarnelBoundaryData *data);
    void readOnePointBoundary(KzXmlData *element, VarnelPointBoundary *boundary);
    void readOneLineBoundary(KzXmlData *element, VarnelLineBoundary *boundary);
    void readOneLineBoundaryData(KzXmlData *element, VarnelLineBoundaryData *data);
    void readOneOwnWeightTransferData(KzXmlData *element, VarnelBoundaryData *data);

    // Loads.

    void updatePointLoads(Varnel *model);
    void updateLineLoads(Varnel *model);
    void updateAreaLoads(Varnel *model);
    void updateAreaLoadValues(VarnelAreaLoad *load);
    void updateOneLineLoadData(const VarnelLineLoadData *data);
    void readOnePointLoad(KzXmlData *element, VarnelPointLoad *load);
    void readOneLineLoad(KzXmlData *element, VarnelLineLoad *load);
    void readOneLineLoadData(KzXmlData *element, VarnelLineLoadData *data);
    void readOneAreaLoad(KzXmlData *element, VarnelAreaLoad *load);
    void readAreaLoadData(KzXmlData *element, VarnelAreaLoad *load);

    // Load cases, stages, groups, result sections and results.

    void updateLoadcases(VarnelManager *manager);
    void createLoadcases(KzXmlData *element, VarnelManager *manager);
    void updateConstructionStages(VarnelSubSystem *subSystem);
    /// Throws Tools::Error for a state whose object is not there.
    void createConstructionStages(KzXmlData *element, VarnelSubSystem *subSystem);
    void updateObjectGroups(Varnel *model);
    void createObjectGroups(KzXmlData *element, Varnel *model);
    void updateResultSections(Varnel *model);
    void createResultSections(KzXmlData *element, Varnel *model);
    void updateSubSystemResults(const std::list<VarnelSubSystem *> &children);
    void updateBeamResults(Varnel *model);
    void updateBeamDisplacements(VarnelBeam *beam, SysBase::Loadcase *loadcase);
    void updateBeamStresses(VarnelBeam *beam, SysBase::Loadcase *loadcase);
    void updatePointBoundaryResults(Varnel *model);
    void updateLineBoundaryResults(Varnel *model);

  protected:
    /// As it stands, null before the first getExchangeBeam().
    VarnelExchangeXmlBeam *getExBeam() const { return exBeam_.get(); }
    /// Takes over; the former one is freed.
    void setExBeam(VarnelExchangeXmlBeam *exBeam);
    KzMaterialManager *getMaterialManager() const;
    /// Whether the lists "POINTS" and "LINES" are written; false from the start.
    void setWritePoints(bool value) { writePoints_ = value; }
    void setWriteLines(bool value) { writeLines_ = value; }

  private:
    friend class VarnelExchangeXmlBeam;

    /// The line of an element; passes to the caller, null for an unknown kind.
    std::unique_ptr<VarnelLine> getLine(KzXmlData *element) const;
    /// The project's, else the stock's; null for an unknown name.
    KzMaterial *findMaterial(const std::string &name) const;
    KzConcrete *findConcrete(const std::string &name) const;
    KzMaterialReinforcement *findReinforcement(const std::string &name) const;
    void readLoadcase(KzXmlData *element, VarnelLoad *load);
    VarnelArea *readOutline(KzXmlData *element, Varnel *model);
    void createAttributeArea(KzXmlData *element, Varnel *model);
    void updateModel(Varnel *model);
    void updateDefaultProperties();
    void createDefaultProperties(KzXmlData *element);
    void createObjectState(KzXmlData *element, VarnelConstructionStage *stage, VarnelSubSystem *subSystem);
    template <class State>
    State *readMemberState(State *state, KzXmlData *element);
    void updateOutlineEdge(VarnelLine *line, std::size_t index);
    void updateEdge(Varnel *model, VarnelPlate *plate, std::size_t index);
    void readPlateMaterial(KzXmlData *element, VarnelPlate *plate);
    void readPointBoundaryBase(KzXmlData *element, VarnelPointBoundary *boundary);
    void readEdgeBoundary(KzXmlData *element, VarnelLineBoundaryData *boundary);
    bool modelUnchanged() const;

    bool writePoints_ = false;
    bool writeLines_ = false;
    std::unique_ptr<VarnelExchangeXmlBeam> exBeam_;
    /// Whether the manager's model was unchanged when the running update of the system began to ask.
    class UnchangedMemory;
    UnchangedMemory *unchanged_ = nullptr;
    /// The subsystem whose stages are being read, else null.
    VarnelSubSystem *stageTarget_ = nullptr;
    /// The project's objects while stages are being written, else null.
    varnel::StateObjects *stateObjects_ = nullptr;
};

#endif
