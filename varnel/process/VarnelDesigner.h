#ifndef VARNEL_PROCESS_VARNELDESIGNER_H
#define VARNEL_PROCESS_VARNELDESIGNER_H

#include <map>
#include <memory>
#include <string>
#include <vector>

#include "varnel/contracts/Export.h"
#include "varnel/contracts/KzVector3D.h"
#include "varnel/contracts/Tools/Path.h"
#include "varnel/results/VarnelPointResultData.h"

class Varnel;
class VarnelAsPlateFunctional;
class VarnelBeam;
class VarnelLineBoundaryData;
class VarnelLineResult;
class VarnelManager;
class VarnelPointBoundary;
class VarnelSubSystem;

namespace SysBase {
class Loadcase;
}

/// The designer of a host: after a calculation it fills the result records of the model and answers the
/// exchange when results are written.
class VARNEL_EXPORT VarnelDesigner {
  public:
    /// How results along a line support are gathered; the host's values, 1 by default.
    enum lineBoundaryResultMode : int {};

    VarnelDesigner();
    /// A copy shares the project path object.
    VarnelDesigner(const VarnelDesigner &) = default;
    VarnelDesigner &operator=(const VarnelDesigner &) = default;
    virtual ~VarnelDesigner();

    /// The load case whose results are asked for; both do the same.
    void setResultLoadcase(int number) { resultLoadcase_ = number; }
    void setResultLc(int number) { resultLoadcase_ = number; }
    /// Threshold of checkValues(), 1e-5 by default.
    void setMinValue(double value) { minValue_ = value; }
    void setLineBoundaryResultMode(lineBoundaryResultMode mode) { lineBoundaryResultMode_ = mode; }
    void setLineBoundaryResultMode(int mode) {
        lineBoundaryResultMode_ = static_cast<lineBoundaryResultMode>(mode);
    }
    /// In m.
    void setMaxDisplacement(double value) { maxDisplacement_ = value; }
    /// Never null.
    Tools::Path *getProjectPath() const { return projectPath_.get(); }
    /// True as soon as one magnitude exceeds the threshold; a value at the threshold does not count.
    bool checkValues(const std::vector<double> &values) const;

    /// Called once, when the manager has made the designer: keeps the manager and its current model, both
    /// shared. A null manager leaves both null.
    virtual void initInstance(VarnelManager *manager);
    /// Called last when results have been taken over.
    virtual void exitInstance();
    /// Fills the result records of the subsystem's model after a calculation.
    virtual void execute(VarnelSubSystem *subSystem);
    /// Called after execute() if the manager's output is switched on.
    virtual void output();
    /// Told once, when the manager has made the designer. Nothing here.
    virtual void setDoOutput(bool value);
    /// Steps through reinforcement results; false when there is no further one.
    virtual bool loopAs(VarnelAsPlateFunctional &functional) const;
    /// Hands out the corners of one mesh element after the other, from the first one again after
    /// meshElementReset(); 0 and untouched arguments here.
    virtual int getMeshElement(std::vector<KzVector3D> &corners, bool deformed, bool &last);
    virtual void meshElementReset();
    /// Ignored here; see getDisplacementScale().
    virtual void setDisplacementScale(double scale);
    /// Always 1.0 here, whatever was set: scaling is the derived designer's business.
    virtual double getDisplacementScale() const;
    /// Takes the project's path over; called once, when the manager has made the designer.
    virtual void setProjectPath(const std::string &path);
    /// The word for the beam's kind from the text resource: a beam for element type 1, else a bar. Null
    /// counts as a bar.
    virtual std::string getBeamName(const VarnelBeam *beam) const;
    /// Adds the support values along a line support in a load case to `result`.
    virtual void getLineBoundaryResult(SysBase::Loadcase *loadcase, VarnelLineBoundaryData *boundary,
                                       VarnelLineResult &result) = 0;
    /// The reactions of all point supports in a load case; supports that are missing count as zero.
    virtual std::map<VarnelPointBoundary *, VarnelPointResultData> getPointBoundaryResults(
        SysBase::Loadcase *loadcase) = 0;
    /// Drops what the designer keeps between two runs. Nothing here; the library never asks for it.
    virtual void reset();

  protected:
    VarnelManager *getManager() const { return manager_; }
    Varnel *getDatabase() const { return database_; }
    /// What the host's designer reads of its settings.
    int getResultLoadcase() const { return resultLoadcase_; }
    double getMinValue() const { return minValue_; }
    lineBoundaryResultMode getLineBoundaryResultMode() const { return lineBoundaryResultMode_; }
    double getMaxDisplacement() const { return maxDisplacement_; }

  private:
    VarnelManager *manager_ = nullptr;
    Varnel *database_ = nullptr;
    int resultLoadcase_ = 0;
    double minValue_ = 1e-05;
    lineBoundaryResultMode lineBoundaryResultMode_ = static_cast<lineBoundaryResultMode>(1);
    double maxDisplacement_ = 0.0;
    std::shared_ptr<Tools::Path> projectPath_;
};

#endif
