// A host with services of its own: a model of simply supported beams is built by calls, taken through set-up
// and analysis, written with its results and read again.
// The "solver" is the statics of a beam on two supports under a uniform load q over the span L: reactions
// q L / 2, moment q x (L - x) / 2.

#include <cmath>
#include <cstdio>
#include <exception>
#include <list>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "varnel/varnel.h"

namespace {

constexpr int fixedInZ = 4;

/// What the converter makes of the model and the calculator solves.
struct Span {
    VarnelBeam *beam;
    const SysBase::Loadcase *loadcase;
    double load;    // kN/m, downwards positive
    double length;  // m
};

/// What passes between the services of one run.
struct Analysis {
    std::vector<Span> spans;
    bool solved = false;
};

/// "Meshing": pairs each beam with the line loads that lie on it.
class Converter : public VarnelConverter {
  public:
    explicit Converter(Analysis &analysis) : analysis_(analysis) {}

    void initInstance(VarnelManager *manager) override { setManager(manager); }
    double getTolerance() override { return tolerance_; }
    void setTolerance(double tolerance) override { tolerance_ = tolerance; }
    void output() override { std::printf("converter: %zu loaded spans\n", analysis_.spans.size()); }

    int convert(VarnelSubSystem *subSystem) override {
        analysis_.spans.clear();
        for (VarnelBeam *beam : subSystem->getDatabase()->getBeams())
            for (const VarnelLineLoad *load : subSystem->getDatabase()->getLineLoads())
                if (liesOn(*load, *beam))
                    analysis_.spans.push_back(
                        {beam, load->getLoadcase(), load->getData().getP1().getZ(), beam->getLength()});
        return analysis_.spans.empty() ? 2 : 1;
    }

  private:
    bool liesOn(const VarnelLineLoad &load, const VarnelBeam &beam) const {
        return load.getLine()->getStartVec().distanceTo(beam.getStartVec()) < tolerance_ &&
               load.getLine()->getEndVec().distanceTo(beam.getEndVec()) < tolerance_;
    }

    Analysis &analysis_;
    double tolerance_ = 0.001;
};

/// "Solving": nothing is left to do but to see that there is something to solve.
class Calculator : public VarnelCalculator {
  public:
    explicit Calculator(Analysis &analysis) : analysis_(analysis) {}

    int execute() override {
        for (const Span &span : analysis_.spans)
            if (!(span.length > 0.0)) {
                getManager()->addError("beam " + std::to_string(span.beam->getNumber()) + " has no length");
                return 2;
            }
        analysis_.solved = true;
        return 1;
    }

  private:
    Analysis &analysis_;
};

/// Hands the results back: moments along the beams, reactions of the columns.
class Designer : public VarnelDesigner {
  public:
    explicit Designer(Analysis &analysis) : analysis_(analysis) {}

    void execute(VarnelSubSystem *) override {
        for (const Span &span : analysis_.spans) {
            SysBase::BeamResultState *state = span.beam->giveResultState(span.loadcase->getNumber());
            for (int tenth = 0; tenth <= 10; ++tenth) {
                const double x = span.length * tenth / 10.0;
                const double moment = span.load * x * (span.length - x) / 2.0;
                state->add(new SysBase::BeamStressResultantsLocation(x, moment));
            }
        }
    }

    void getLineBoundaryResult(SysBase::Loadcase *, VarnelLineBoundaryData *, VarnelLineResult &) override {}

    std::map<VarnelPointBoundary *, VarnelPointResultData> getPointBoundaryResults(
        SysBase::Loadcase *loadcase) override {
        std::map<VarnelPointBoundary *, VarnelPointResultData> results;
        for (VarnelPointBoundary *column : getDatabase()->getPointBoundaries())
            results[column] = VarnelPointResultData(0, 0, reaction(*column, *loadcase), 0, 0, 0);
        return results;
    }

  private:
    /// Half the load of every span that ends on the column.
    double reaction(const VarnelPointBoundary &column, const SysBase::Loadcase &loadcase) const {
        double sum = 0.0;
        for (const Span &span : analysis_.spans) {
            if (span.loadcase != &loadcase) continue;
            const bool starts = span.beam->getStartVec() == column.getCoor();
            const bool ends = span.beam->getEndVec() == column.getCoor();
            if (starts || ends) sum += span.load * span.length / 2.0;
        }
        return sum;
    }

    Analysis &analysis_;
};

class ErrorHandler : public VarnelErrorHandler {
  public:
    void display(const std::list<std::string> &messages) const override {
        for (const std::string &message : messages) display(message);
    }
    void display(const std::string &message) const override { std::printf("error: %s\n", message.c_str()); }
};

class Factory : public VarnelFactory {
  public:
    VarnelConverter *giveConverter() const override { return new Converter(analysis_); }
    VarnelCalculator *giveCalculator() const override { return new Calculator(analysis_); }
    VarnelDesigner *giveDesigner() const override { return new Designer(analysis_); }
    VarnelErrorHandler *giveErrorHandler() const override {
        return &errors_;
    }  // the manager never deletes it

    bool solved() const { return analysis_.solved; }

  private:
    mutable Analysis analysis_;
    mutable ErrorHandler errors_;
};

/// Beams of 6 m in a row, a column below every end, a dead and a live load on each.
void build(VarnelManager &manager, int spans) {
    Varnel &model = *manager.getDatabase();
    SysBase::Loadcase *loadcases[] = {manager.giveLoadcaseToNumber(1, true),
                                      manager.giveLoadcaseToNumber(2, true)};
    loadcases[0]->setName("Dead loads");
    loadcases[1]->setName("Live loads");
    for (int i = 0; i <= spans; ++i)
        model.givePointBoundaryRectan(KzVector3D(6.0 * i, 0, 3), fixedInZ, 0.3, 0.3);
    for (int i = 0; i < spans; ++i) {
        const KzVector3D start(6.0 * i, 0, 3), end(6.0 * (i + 1), 0, 3);
        VarnelBeam *beam = model.giveBeam(start, end);
        beam->setMaterial(KzMaterialHandler::get()->findConcreteToName("C30/37", 0), 0);
        beam->setSection(
            dynamic_cast<SDBSectionLine *>(SDBSectionDatabase::get()->findSectionToName("R 30/50")), 0);
        model.add(beam);
        for (SysBase::Loadcase *loadcase : loadcases) {
            VarnelLineLoad *load = model.giveLineLoad(new VarnelStraight(start, end));
            load->setP1(0, 0, loadcase == loadcases[0] ? 12.0 : 8.0);
            load->setP2(0, 0, loadcase == loadcases[0] ? 12.0 : 8.0);
            load->setLoadcase(loadcase);
        }
    }
}

bool near(double a, double b) {
    return std::fabs(a - b) < 1e-9;
}

/// The moment in the middle of a beam of 6 m is q 36 / 8.
bool checkResults(const Varnel &model) {
    const VarnelBeam *beam = model.getBeams().front();
    for (const SysBase::BeamResultState *state : beam->getResultStates()) {
        const double middle = state->getStressResultantsLocations().at(5)->getMy();
        std::printf("load case %d: %.1f kNm in the middle of beam %d\n", state->getStateNumber(), middle,
                    beam->getNumber());
        if (!near(middle, (state->getStateNumber() == 1 ? 12.0 : 8.0) * 36.0 / 8.0)) return false;
    }
    return beam->getResultStates().size() == 2;
}

int run(const std::string &path) {
    Factory factory;
    VarnelManager manager(&factory);
    manager.setProjectPath(path);
    build(manager, 3);

    manager.setup();
    const int result = manager.update();
    std::printf("update: %d\n", result);
    if (result != 1 || !factory.solved() || !checkResults(*manager.getDatabase())) return 1;
    if (manager.update() != 1) return 1;  // nothing has changed: no service runs again

    manager.output(path.c_str());  // with results, since nothing changed since the calculation
    if (!manager.getExchange()->lastOutputOk()) return 1;

    Factory readerFactory;  // one for each manager that lives
    VarnelManager reader(&readerFactory);
    reader.input(path.c_str());
    std::printf("read again: %d beams, %d columns, %zu load cases\n",
                reader.getDatabase()->getNumberOfBeams(), reader.getDatabase()->getNumberOfPointBoundaries(),
                reader.getLoadcases().size());
    return reader.getDatabase()->getNumberOfBeams() == 3 && reader.getLoadcases().size() == 2 ? 0 : 1;
}

}  // namespace

int main() {
    try {
        return run("run_an_analysis.xml");
    } catch (const std::exception &error) {
        std::fprintf(stderr, "%s\n", error.what());
        return 1;
    }
}
