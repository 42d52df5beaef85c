#ifndef VARNEL_PROCESS_VARNELCALCULATOR_H
#define VARNEL_PROCESS_VARNELCALCULATOR_H

#include <array>
#include <memory>
#include <utility>
#include <vector>

#include "varnel/contracts/Export.h"
#include "varnel/contracts/KzVector3D.h"
#include "varnel/contracts/Reinforcement/SuperposedResult.h"
#include "varnel/contracts/Tools/Path.h"

class Varnel;
class VarnelManager;

namespace SysBase {
class Creep;
class Imperfection;
class IterationControlData;
}  // namespace SysBase

/// The solver of a host. The manager makes it on first use, hands it the project path and asks execute() for
/// the calculation; everything else is between the host and its solver. The switches are only stored here.
class VARNEL_EXPORT VarnelCalculator {
  public:
    VarnelCalculator() = default;
    VarnelCalculator(const VarnelCalculator &) = default;
    VarnelCalculator &operator=(const VarnelCalculator &) = default;
    virtual ~VarnelCalculator();

    void setProjectPath(const Tools::Path &path) { projectPath_ = path; }
    void setDoSuperposition(bool value) { doSuperposition_ = value; }
    void setDoSteelDesign(bool value) { doSteelDesign_ = value; }
    void setDoDesign(bool value) { doDesign_ = value; }
    void setDoBeamShearDesign(bool value) { doBeamShearDesign_ = value; }
    void setDoPlateShearDesign(bool value) { doPlateShearDesign_ = value; }
    void setDoBeamBendingDesign(bool value) { doBeamBendingDesign_ = value; }
    void setDoPlateBendingDesign(bool value) { doPlateBendingDesign_ = value; }
    void setDoEigenvalueAnalysis(bool value) { doEigenvalueAnalysis_ = value; }
    void setDoUltimateStateAnalysis(bool value) { doUltimateStateAnalysis_ = value; }
    void enableExceptionOnWarnings(bool value) { exceptionOnWarnings_ = value; }
    void enableLinearColumnDesign(bool value) { linearColumnDesign_ = value; }
    void enableNonlinearColumnDesign(bool value) { nonlinearColumnDesign_ = value; }
    void enableColumnGeometricMinimumReinforcement(bool value) {
        columnGeometricMinimumReinforcement_ = value;
    }
    void enableCreeping(bool value) { creeping_ = value; }
    void enableElevatedTemperatureAnalysis(bool value) { elevatedTemperatureAnalysis_ = value; }
    void enableMeanValuesCalculation(bool value) { meanValuesCalculation_ = value; }
    void enableSolverImprovements(bool value) { solverImprovements_ = value; }
    void setDoGeometricallyNonlinearAnalysis(bool value) { doGeometricallyNonlinearAnalysis_ = value; }
    bool doGeometricallyNonlinearAnalysis() const { return doGeometricallyNonlinearAnalysis_; }
    void setDoMateriallyNonlinearAnalysis(bool value) { doMateriallyNonlinearAnalysis_ = value; }
    bool doMateriallyNonlinearAnalysis() const { return doMateriallyNonlinearAnalysis_; }
    /// The step of a staged analysis; written by the manager's step counter.
    void setCurrentStep(int step) { currentStep_ = step; }
    int getCurrentStep() const { return currentStep_; }

    /// Called once, when the manager has made the calculator: keeps the manager and its current model, both
    /// shared. A null manager leaves both null.
    virtual void initInstance(VarnelManager *manager);
    /// Writes the results of the last calculation. As all that follows, but execute() and setDoOutput(), it
    /// is only asked for by hosts; it does nothing here, and answers are null, zero or empty.
    virtual void output();
    /// The calculation. Bit 0 of the answer set means success; this base always answers 2, failure.
    virtual int execute();
    virtual void showDocument(Varnel *model);
    /// Whether files are to be written; called before each execute().
    virtual void setDoOutput(bool value);
    virtual void setMainDiagonalErrorEpsilon(double epsilon);
    virtual void setMainDiagonalWarningEpsilon(double epsilon);
    /// Ends a running calculation. Nothing here; the library never asks for it.
    virtual void cancel();
    virtual void setImperfectionData(bool use, std::array<std::pair<int, double>, 2> data);
    virtual SysBase::Imperfection *getImperfectionData() const;
    virtual void setIterationControlData(const SysBase::IterationControlData &data);
    virtual SysBase::IterationControlData *getIterationControlData() const;
    virtual SysBase::Creep *getCreep() const;
    virtual void setCreep(SysBase::Creep *creep);
    /// Sums over the structure for the load case of that number (kN, kNm); zero here.
    virtual KzVector3D getTotalForceExternalLoads(int loadcase);
    virtual KzVector3D getTotalMomentExternalLoads(int loadcase);
    virtual KzVector3D getTotalSupportForce(int loadcase);
    virtual KzVector3D getTotalSupportMoment(int loadcase);
    virtual void selectColumnDesignStates(const std::vector<int> &states);
    virtual void setUpInitialReinforcement(
        const std::vector<std::unique_ptr<Reinforcement::SuperposedResult>> &reinforcement);
    virtual std::vector<std::unique_ptr<Reinforcement::SuperposedResult>> superposeColumnDesignResults();

  protected:
    Varnel *getDatabase() const { return database_; }
    VarnelManager *getManager() const { return manager_; }
    const Tools::Path &getProjectPath() const { return projectPath_; }
    /// What the host's solver reads of the switches.
    bool doOutput() const { return doOutput_; }
    bool doSuperposition() const { return doSuperposition_; }
    bool doSteelDesign() const { return doSteelDesign_; }
    bool doDesign() const { return doDesign_; }
    bool doBeamShearDesign() const { return doBeamShearDesign_; }
    bool doPlateShearDesign() const { return doPlateShearDesign_; }
    bool doBeamBendingDesign() const { return doBeamBendingDesign_; }
    bool doPlateBendingDesign() const { return doPlateBendingDesign_; }
    bool doEigenvalueAnalysis() const { return doEigenvalueAnalysis_; }
    bool doUltimateStateAnalysis() const { return doUltimateStateAnalysis_; }
    bool exceptionOnWarnings() const { return exceptionOnWarnings_; }
    bool linearColumnDesign() const { return linearColumnDesign_; }
    bool nonlinearColumnDesign() const { return nonlinearColumnDesign_; }
    bool columnGeometricMinimumReinforcement() const { return columnGeometricMinimumReinforcement_; }
    bool creeping() const { return creeping_; }
    bool elevatedTemperatureAnalysis() const { return elevatedTemperatureAnalysis_; }
    bool meanValuesCalculation() const { return meanValuesCalculation_; }
    bool solverImprovements() const { return solverImprovements_; }

  private:
    Varnel *database_ = nullptr;
    VarnelManager *manager_ = nullptr;
    Tools::Path projectPath_;
    bool doOutput_ = true;
    bool doSuperposition_ = true;
    bool doSteelDesign_ = false;
    bool doDesign_ = true;
    bool doBeamShearDesign_ = true;
    bool doPlateShearDesign_ = true;
    bool doBeamBendingDesign_ = true;
    bool doPlateBendingDesign_ = true;
    bool doEigenvalueAnalysis_ = false;
    bool doUltimateStateAnalysis_ = false;
    bool exceptionOnWarnings_ = false;
    bool linearColumnDesign_ = false;
    bool nonlinearColumnDesign_ = false;
    bool columnGeometricMinimumReinforcement_ = true;
    bool creeping_ = false;
    bool elevatedTemperatureAnalysis_ = false;
    bool meanValuesCalculation_ = false;
    bool solverImprovements_ = false;
    bool doGeometricallyNonlinearAnalysis_ = false;
    bool doMateriallyNonlinearAnalysis_ = false;
    int currentStep_ = 0;
};

#endif
