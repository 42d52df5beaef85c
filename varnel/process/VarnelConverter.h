#ifndef VARNEL_PROCESS_VARNELCONVERTER_H
#define VARNEL_PROCESS_VARNELCONVERTER_H

#include <memory>
#include <string>

#include "varnel/contracts/Export.h"
#include "varnel/contracts/Tools/Path.h"

class Varnel;
class VarnelConstructionStage;
class VarnelManager;
class VarnelSubSystem;

/// The mesher of a host: turns the model into what its solver takes. The manager makes it on first use and
/// calls convert() for a subsystem tree whose objects have just been numbered.
class VARNEL_EXPORT VarnelConverter {
  public:
    VarnelConverter(const VarnelConverter &) = delete;
    VarnelConverter &operator=(const VarnelConverter &) = delete;
    /// Runs removeAll() as this class has it: a derived converter is gone by then and cleans up by itself.
    virtual ~VarnelConverter();

    int getCurrentStep() const { return currentStep_; }
    void setCurrentStep(int step) { currentStep_ = step; }
    int getLastStep() const { return lastStep_; }
    void setLastStep(int step) { lastStep_ = step; }
    Varnel *getDatabase() const { return database_; }
    VarnelManager *getManager() const { return manager_; }
    /// The manager is shared: it outlives the converter.
    void setManager(VarnelManager *manager) { manager_ = manager; }
    /// Owned by the converter, never null.
    Tools::Path *getProjectPath() const { return projectPath_.get(); }

    /// Shows what the last conversion made. Nothing here; the library never asks for it.
    virtual void showDocument();
    /// The model to convert; shared.
    virtual void setDatabase(Varnel *model);
    /// Writes what the last conversion made; called after a conversion or a modification when the manager's
    /// output is switched on, also if the conversion failed.
    virtual void output() = 0;
    /// Called once, when the manager has made the converter.
    virtual void initInstance(VarnelManager *manager) = 0;

  protected:
    VarnelConverter();

    /// The load case of that number has become the current one, -1 none. Nothing here.
    virtual void setCurrentLoadcase(int number);
    /// Takes the project's path over.
    virtual void setProjectPath(const std::string &path);

  public:
    /// The smallest distance that the mesher tells apart, in m.
    virtual double getTolerance() = 0;
    virtual void setTolerance(double tolerance) = 0;

  private:
    friend class VarnelManager;

    /// Forgets earlier conversions; called before a fresh one. Nothing here.
    virtual void removeAll();
    /// Changes the converted model after a refresh. Nothing here.
    virtual void modifyModel();

  public:
    /// Makes the mesh finer where the last results ask for it. Nothing here; the library never asks for it.
    virtual void refineMesh();

  private:
    /// For hosts that apply construction stages; the library never asks for it.
    virtual void setupConstructionStage(VarnelConstructionStage *stage);

  public:
    /// Converts the subsystem with all below it. Bit 0 of the answer set means success.
    virtual int convert(VarnelSubSystem *subSystem) = 0;

  private:
    int currentStep_ = 0;
    int lastStep_ = 0;
    Varnel *database_ = nullptr;
    VarnelManager *manager_ = nullptr;
    std::unique_ptr<Tools::Path> projectPath_;
};

#endif
