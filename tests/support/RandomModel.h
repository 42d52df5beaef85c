#ifndef VARNEL_TESTS_SUPPORT_RANDOMMODEL_H
#define VARNEL_TESTS_SUPPORT_RANDOMMODEL_H

#include <cstddef>
#include <list>
#include <random>
#include <string>
#include <vector>

#include "varnel/contracts/KzVector3D.h"
#include "varnel/members/VarnelDesignData.h"
#include "varnel/model/Varnel.h"
#include "varnel/process/VarnelManager.h"

class VarnelBoundaryData;
class VarnelLineBoundaryData;
class VarnelLoad;

namespace varnel::test {

/// Chance that is the same on every machine for one seed: the library's distributions are not.
class Random {
  public:
    explicit Random(unsigned seed) : engine_(seed) {}

    /// 0 to n - 1.
    int below(int n) { return static_cast<int>(engine_() % static_cast<unsigned>(n)); }
    bool oneIn(int n) { return below(n) == 0; }
    template <class T>
    const T &of(const std::vector<T> &choices) {
        return choices[static_cast<std::size_t>(below(static_cast<int>(choices.size())))];
    }
    /// 0 to 1 with all digits that a double has.
    double unit() {
        const double high = static_cast<double>(engine_());
        return high * 0x1p-32 + static_cast<double>(engine_()) * 0x1p-64;
    }

  private:
    std::mt19937 engine_;
};

/// Fills a project with small models of all kinds of objects, in subsystems up to three deep, with what a
/// document keeps and what it loses. The same seed makes the same project.
class RandomModel {
  public:
    /// With `exact` all places are multiples of a quarter and nothing is turned, so that no number of a
    /// document is rounded on its way through a model.
    RandomModel(VarnelManager &manager, unsigned seed, bool exact);

    void fill();
    /// What a process has once: the templates of new objects, with things of the project, and the standard.
    void setProcessDefaults();

    /// Load cases and results, as a calculation leaves them: they mark no change.
    void addResults();

  private:
    void setDefaultLoads();
    void setSwitches();
    void addLoadcases();
    void addResources();
    void fillSubSystem(VarnelSubSystem &subSystem, int depth);
    void addPlate();
    void addEdges(VarnelPlate &plate);
    void addPlateLoads(VarnelPlate &plate);
    void addBeam();
    void addBeamResources(VarnelBeam &beam);
    void addSpan(VarnelBeam &beam);
    void addHole();
    void addAttributeArea();
    void addLoadDistributionArea();
    void addPointBoundary();
    void addLineBoundary();
    void addPointLoad();
    void addLineLoad();
    void addAreaLoad();
    void addResultSection();
    void addGroup(bool nested);
    void addWhatIsNotWritten();
    void addStages();
    void addResultsTo(Varnel &model);
    void setSupport(VarnelBoundaryData &data);
    void setLoad(VarnelLoad &load);

    double place();
    double value();
    KzVector3D point();
    KzVector3D vector();
    KzVector3D direction();
    std::string name();
    KzMaterial *material();
    VarnelDesignData design();
    VarnelLine *line(bool maybeNone);
    VarnelLine *wallLine();
    VarnelArea *outline();

    VarnelManager &manager_;
    Random random_;
    bool exact_;
    Varnel *model_ = nullptr;  // the one that is being filled
};

}  // namespace varnel::test

#endif
