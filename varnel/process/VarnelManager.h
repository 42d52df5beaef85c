#ifndef VARNEL_PROCESS_VARNELMANAGER_H
#define VARNEL_PROCESS_VARNELMANAGER_H

#include <list>
#include <memory>
#include <string>

#include "varnel/contracts/Export.h"
#include "varnel/contracts/SysBase/Manager.h"
#include "varnel/contracts/Tools/Path.h"

class KzDiagramManager;
class KzMaterialManager;
class KzReinfLineList;
class KzReinfMeshList;
class KzReinfStockMesh;
class KzVector3D;
class SDBSectionManager;
class Varnel;
class VarnelBeam;
class VarnelCalculator;
class VarnelConverter;
class VarnelDataChecker;
class VarnelDesigner;
class VarnelErrorHandler;
class VarnelExchange;
class VarnelFactory;
class VarnelSubSystem;
struct VarnelSetupHelper;

namespace Found {
class Foundation;
}

/// The central object of a project. It owns the resources, the tree of subsystems and, made on first use by
/// the factory, one of each service; it numbers the model, drives the steps of an analysis and reads and
/// writes the project. One thread at a time.
class VARNEL_EXPORT VarnelManager : public SysBase::Manager {
  public:
    /// How plate reinforcement is looped over.
    enum AsPlateLoopMode : int {};
    /// Where results are designed: 0 at nodes, 1 at edge centres, 2 at element centres.
    enum DesignLocation : int {};

    /// Makes the resources, the subsystem "System" on the factory, and tells the factory. The factory is
    /// shared: it outlives the manager, and serves one living manager at a time.
    explicit VarnelManager(VarnelFactory *factory);
    VarnelManager(const VarnelManager &) = delete;
    VarnelManager &operator=(const VarnelManager &) = delete;
    /// Frees services, subsystems and resources, but not the error handler, which is the host's.
    ~VarnelManager() override;

    /// Load cases are added as the base does it, beside subsystems.
    using SysBase::Manager::add;
    /// A new load case of that number, the caller's to add.
    SysBase::Loadcase *giveLoadcase(int number) override;
    /// Makes the case of that number current, none for -1 or an unknown number, and tells the converter.
    void setCurrentLoadcase(int number) override;
    /// Takes the loads of the case out of the current model, where they pass undeleted to the caller, and
    /// then the case out of the list; deletes the case if asked. A deleted case is first forgotten by all
    /// loads and default records. Null is ignored.
    void remove(SysBase::Loadcase *loadcase, bool destroy) override;

    // Switches.

    /// Whether update() converts at all.
    bool doConvert() const { return doConvert_; }
    void enableConvert(bool value) { doConvert_ = value; }
    /// Whether refresh() does anything; results are then kept and added to.
    bool doRefresh() const { return doRefresh_; }
    void enableRefresh(bool value) { doRefresh_ = value; }
    /// Whether services write files.
    bool doOutput() const { return doOutput_; }
    void enableOutput(bool value) { doOutput_ = value; }
    /// Whether an update goes on from the conversion to the calculation.
    bool doCalculation() const { return doCalculation_; }
    void enableCalculation(bool value) { doCalculation_ = value; }
    /// Whether setup() makes the load cases from the model.
    bool getLoadcaseAutomation() const { return loadcaseAutomation_; }
    void setLoadcaseAutomation(bool value) { loadcaseAutomation_ = value; }
    /// Whether the automation's first case holds the own weight.
    bool getOwnWeight() const { return ownWeight_; }
    void setOwnWeight(bool value) { ownWeight_ = value; }
    /// Quadratic shape functions; stored for the host's mesher.
    bool doUseQuadraticShape() const { return useQuadraticShape_; }
    void enableUseQuadraticShape(bool value) { useQuadraticShape_ = value; }
    /// Equal parts along beams; stored for the host's mesher.
    bool doUseEquidistantBeamParts() const { return useEquidistantBeamParts_; }
    void enableUseEquidistantBeamParts(bool value) { useEquidistantBeamParts_ = value; }
    DesignLocation getDesignLocation() const { return designLocation_; }
    void setDesignLocation(DesignLocation location) { designLocation_ = location; }
    void setDesignLocation(int location) { designLocation_ = static_cast<DesignLocation>(location); }
    /// Always the first mode.
    AsPlateLoopMode getPlateAsMode() const { return static_cast<AsPlateLoopMode>(0); }

    // Services: owned, made by the factory on the first call, null if it offers none.

    VarnelConverter *getConverter();
    VarnelCalculator *getCalculator();
    VarnelDataChecker *getDataChecker();
    VarnelDesigner *getDesigner();
    /// Never deleted by the manager: the host deletes it.
    VarnelErrorHandler *getErrorHandler();
    VarnelExchange *getExchange();
    /// As it stands, without making one.
    VarnelExchange *getExchange() const { return exchange_; }
    /// Deletes converter, calculator and designer; the next use makes them anew. The data checker, the error
    /// handler and the exchange stay.
    void reset();

    VarnelFactory *getFactory() const { return factory_; }
    /// Resets the services and hands the current model the new factory's mode. The new factory is shared and
    /// is not told of the manager.
    void setFactory(VarnelFactory *factory);

    // Resources: owned.

    KzDiagramManager *getDiagramManager() const { return diagramManager_.get(); }
    KzMaterialManager *getMaterialManager() const { return materialManager_.get(); }
    KzReinfMeshList *getDgnMeshList() const { return dgnMeshList_.get(); }
    KzReinfLineList *getDgnList() const { return dgnList_.get(); }
    SDBSectionManager *getSectionManager() const { return sectionManager_.get(); }
    /// The project's mesh of that name; else a clone of the stock mesh, taken into the project; else null.
    KzReinfStockMesh *getStockMesh(const std::string &name);
    /// The project's foundation for the pattern's displacement line plus `displacement`; null counts as a
    /// pattern of zeros.
    Found::Foundation *giveFoundation(const Found::Foundation *pattern, const KzVector3D &displacement);
    /// The smallest distance that the converter tells apart, in m; 0 without a converter.
    double getTolerance();
    void setTolerance(double tolerance);

    // The tree of subsystems.

    VarnelSubSystem *getCurrentSubSystem() const { return currentSubSystem_; }
    /// Shared: any node of the tree. Stays current also when it is removed, so set another one before.
    void setCurrentSubSystem(VarnelSubSystem *subSystem) { currentSubSystem_ = subSystem; }
    const std::list<VarnelSubSystem *> &getSubSystems() const { return subSystems_; }
    /// The model of the current subsystem, null without one.
    Varnel *getDatabase() const;
    /// The child of `parent` with that name, made and added if absent. Null without a parent.
    VarnelSubSystem *giveSubSystem(const std::string &name, VarnelSubSystem *parent);
    /// See the form with a start.
    VarnelSubSystem *findSubSystem(const std::string &name, bool recursive);
    /// The child of `start` (null: the root) with that name. Never null while there is a root: an unknown
    /// name answers the node itself, and a recursive search ends in the first child, so compare the name of
    /// the answer. `parent` is written only when a child matched: with `start` as it was handed in.
    VarnelSubSystem *findSubSystem(const std::string &name, VarnelSubSystem *start, VarnelSubSystem *&parent,
                                   bool recursive);
    /// Detaches the subsystem, which passes to the caller; 1 if it was found, else 0.
    int removeSubSystem(VarnelSubSystem *subSystem, bool recursive);
    /// Appends to the parent's children, or beside the root without a parent; owned.
    void add(VarnelSubSystem *subSystem, VarnelSubSystem *parent);

    // Changes. All walks start at the current subsystem: make the root current to cover the whole tree.

    bool modelChanged() const;
    bool loadChanged() const;
    bool systemChanged() const;
    bool sectionChanged() const;
    bool materialChanged() const;
    bool foundationChanged() const;
    void setSystemChanged(bool value);
    void setLoadChanged(bool value);

    // Project and files.

    const Tools::Path &getProjectPath() const { return projectPath_; }
    void setProjectPath(const Tools::Path &path) { projectPath_ = path; }
    void setProjectPath(const std::string &path) { projectPath_.setPath(path); }
    /// The folder named after the project file, with a separator at the end.
    std::string getDocumentPath() const;
    /// Reads the project-wide data of another file; nothing without an exchange.
    void loadProjectSettings(const std::string &path);
    /// Writes the whole project to another file; nothing without an exchange.
    void saveProjectSettings(const std::string &path);
    /// Deletes the file; a failure is ignored.
    void fileRemove(const std::string &path);
    /// Lets every model from the current subsystem down bring its generated cross-sections up to date.
    void updateResultSections();

    // Steps of an analysis. Answers: 1 success, 2 failure.

    /// Numbers everything below the current subsystem, derives the references between supports and, with
    /// automation, makes the load cases anew.
    void setup();
    /// One subsystem with its children; construction stages are not numbered here.
    void setup(VarnelSubSystem *subSystem, VarnelSetupHelper &helper, bool doLoads, bool flag);
    /// As update(getCurrentSubSystem()).
    int update();
    /// Data check, conversion, calculation and results, if something changed. 2 also for an unfit model,
    /// whose errors are then displayed.
    int update(VarnelSubSystem *subSystem);
    /// Set-up, then one update for each construction stage; load cases stay, failures are not reported.
    void updateAll();
    /// Brings the document up to date with the model and writes no file; nothing without an exchange.
    void updateExchange();
    /// A fresh conversion of the current subsystem without a calculation.
    void updateConverter();
    /// Modification of what was converted, calculation and results. An unfit model answers 1.
    int refresh();
    /// Numbers the whole tree, writes the project and marks everything unchanged, also if the file could not
    /// be written (see the exchange's lastOutputOk()). Results are written only for an unchanged model.
    void output(const char *path);
    /// Reads the project into the current subsystem, which is not emptied first. False only without an
    /// exchange; a file that cannot be opened leaves the model as it was. Throws Tools::Error for a malformed
    /// document and for references to things that are not there.
    bool input(const char *path);

    int getCurrentStep() const { return currentStep_; }
    /// Moves on to the step; the former one becomes the last one. Tells converter and calculator, as the two
    /// below do.
    void setCurrentStep(int step);
    /// The step after the last one, which itself does not move.
    void nextStep();
    /// Back to 0, the last step too; the converter keeps the last step that it was told.
    void resetStep();

    /// Clears the errors and asks the data checker; true without one.
    bool systemOk();
    /// Shows the message at once; nothing without an error handler.
    void error(const std::string &message);
    /// Collects a message; update() shows them for an unfit model.
    void addError(const std::string &message) { errorList_.push_back(message); }
    const std::list<std::string> &getErrorList() const { return errorList_; }

    /// Names of picture files: "str0012-0003" for beam 12 and state 3, with "-II" behind it if `second`.
    std::string givePictureNameBeamPrimaryStress(const VarnelBeam *beam, int state, bool second) const;
    /// "ifstr0012-0003" for beam 12 and state 3.
    std::string givePictureNameInterfaceStressAtBeam(const VarnelBeam *beam, int state);

    // Load cases made from the model.

    /// With automation: one case for own weight and dead loads, one for each loaded plate, and the case of
    /// the plate below for each free live load, or none.
    void setupLoads(VarnelSubSystem *subSystem);
    /// The case of the plate of the current model at that place, made if absent; null where no plate is.
    SysBase::Loadcase *findLoadcase(const KzVector3D &coordinates);

  private:
    class Implementation;

    void deleteServices();
    int doConvertModel(VarnelSubSystem *subSystem);
    int doModifyModel(VarnelSubSystem *subSystem);
    int doCalculation(VarnelSubSystem *subSystem);
    int doDesign(VarnelSubSystem *subSystem);
    int doGetResults(VarnelSubSystem *subSystem);
    bool doResultConversion();
    int calculateAndGetResults(VarnelSubSystem *subSystem, int result);
    void setEverythingUnchanged();
    void setupNumbers(VarnelSubSystem *subSystem, VarnelSetupHelper &helper);
    void setSectionChanged(bool value);
    void setMaterialChanged(bool value);
    void setFoundationChanged(bool value);
    void forgetLoadcases(const std::list<SysBase::Loadcase *> &dying);

    std::unique_ptr<Implementation> implementation_;
    std::list<std::string> errorList_;
    bool doConvert_ = true;
    bool doRefresh_ = false;
    bool doOutput_ = true;
    bool doCalculation_ = true;
    int currentStep_ = 0;
    int lastStep_ = 0;
    bool loadcaseAutomation_ = false;
    bool ownWeight_ = true;
    bool useQuadraticShape_ = true;
    bool useEquidistantBeamParts_ = false;
    DesignLocation designLocation_ = static_cast<DesignLocation>(2);
    VarnelConverter *converter_ = nullptr;
    VarnelCalculator *calculator_ = nullptr;
    VarnelDataChecker *dataChecker_ = nullptr;
    VarnelDesigner *designer_ = nullptr;
    VarnelErrorHandler *errorHandler_ = nullptr;
    VarnelExchange *exchange_ = nullptr;
    VarnelFactory *factory_;
    VarnelSubSystem *currentSubSystem_ = nullptr;
    std::unique_ptr<KzDiagramManager> diagramManager_;
    std::unique_ptr<KzMaterialManager> materialManager_;
    std::unique_ptr<KzReinfMeshList> dgnMeshList_;
    std::unique_ptr<KzReinfLineList> dgnList_;
    std::unique_ptr<SDBSectionManager> sectionManager_;
    Tools::Path projectPath_;
    std::list<VarnelSubSystem *> subSystems_;
};

#endif
