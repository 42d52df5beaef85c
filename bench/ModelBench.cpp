// Growth of the model's operations from 10^4 to 10^6 objects. Each figure is the time of the whole operation
// over n objects; the line "..._BigO" tells the exponent's family, the columns of two sizes the exponent.

#include <benchmark/benchmark.h>

#include <memory>
#include <random>
#include <vector>

#include "varnel/varnel.h"

namespace {

/// Plates in rows, side by side, so that neighbours share corners and edges.
void addPlates(Varnel &model, int count) {
    const int row = 1000;
    for (int i = 0; i < count; ++i) {
        VarnelPlate *plate = model.givePlate(true);
        const double x = 5.0 * (i % row), y = 4.0 * (i / row);
        plate->setArea(new VarnelAreaRectangle(KzVector3D(x, y, 0), 5.0, 4.0, 0.0));
        plate->setBoundary(0, VarnelLineBoundaryData(4, ""));
        plate->setBoundary(2, VarnelLineBoundaryData(4, ""));
    }
}

void addBeams(Varnel &model, int count) {
    for (int i = 0; i < count; ++i) {
        VarnelBeam *beam = model.giveBeam(true);
        beam->setLine(KzVector3D(5.0 * (i % 1000), 4.0 * (i / 1000), 0),
                      KzVector3D(5.0 * (i % 1000 + 1), 4.0 * (i / 1000), 0), 0);
    }
}

void addPointLoads(Varnel &model, int count, double offset = 0.0) {
    for (int i = 0; i < count; ++i)
        model.givePointLoad()->setCoor(KzVector3D(5.0 * (i % 1000) + offset, 4.0 * (i / 1000), 0));
}

/// A project with an empty model.
struct Project {
    VarnelFactory factory;
    VarnelManager manager{&factory};
    Varnel &model = *manager.getDatabase();
};

void sizes(benchmark::internal::Benchmark *bench) {
    bench->RangeMultiplier(10)->Range(10000, 1000000)->Complexity()->Unit(benchmark::kMillisecond);
}

void smallSizes(benchmark::internal::Benchmark *bench) {
    bench->RangeMultiplier(10)->Range(1000, 100000)->Complexity()->Unit(benchmark::kMillisecond);
}

/// Runs `operation` on a project that `setUp` has filled; only the operation is timed.
template <class SetUp, class Operation>
void run(benchmark::State &state, SetUp setUp, Operation operation) {
    const int count = static_cast<int>(state.range(0));
    for (auto _ : state) {
        state.PauseTiming();
        auto project = std::make_unique<Project>();
        setUp(*project, count);
        state.ResumeTiming();
        operation(*project, count);
        state.PauseTiming();
        project.reset();
        state.ResumeTiming();
    }
    state.SetComplexityN(state.range(0));
}

void nothing(Project &, int) {}

void beams(Project &project, int count) {
    addBeams(project.model, count);
}

void plates(Project &project, int count) {
    addPlates(project.model, count);
}

void giveBeams(benchmark::State &state) {
    run(state, nothing, [](Project &project, int count) { addBeams(project.model, count); });
}
BENCHMARK(giveBeams)->Apply(sizes);

void givePointLoads(benchmark::State &state) {
    run(state, nothing, [](Project &project, int count) { addPointLoads(project.model, count); });
}
BENCHMARK(givePointLoads)->Apply(sizes);

void findBeamToNumber(benchmark::State &state) {
    run(state, beams, [](Project &project, int count) {
        for (int i = 1; i <= count; ++i) benchmark::DoNotOptimize(project.model.findBeamToNumber(i));
    });
}
BENCHMARK(findBeamToNumber)->Apply(sizes);

void setupNumbers(benchmark::State &state) {
    run(state, plates, [](Project &project, int) {
        VarnelSetupHelper helper;
        project.model.setupNumbers(helper);
    });
    state.counters["points"] =
        benchmark::Counter(4.0 * static_cast<double>(state.range(0)),
                           benchmark::Counter::kIsIterationInvariantRate | benchmark::Counter::kInvert);
}
BENCHMARK(setupNumbers)->Apply(smallSizes);

void setupBoundaryReferences(benchmark::State &state) {
    run(state, plates, [](Project &project, int) { project.model.setupBoundaryReferences(); });
}
BENCHMARK(setupBoundaryReferences)->Apply(smallSizes);

void mergePoints(benchmark::State &state) {
    run(
        state,
        [](Project &project, int count) {
            addBeams(project.model, count);
            addPointLoads(project.model, count, 0.0015);
        },
        [](Project &project, int) { project.model.mergePointsInVarnelObjects(); });
}
BENCHMARK(mergePoints)->Apply(smallSizes);

void setupLoads(benchmark::State &state) {
    run(
        state,
        [](Project &project, int count) {
            addPlates(project.model, count);
            addPointLoads(project.model, count, 1.0);
            for (VarnelPointLoad *load : project.model.getPointLoads())
                load->setLcType(static_cast<SysBase::LoadcaseData::Type>(2));
            project.manager.setLoadcaseAutomation(true);
        },
        [](Project &project, int) { project.manager.setupLoads(project.manager.getCurrentSubSystem()); });
}
BENCHMARK(setupLoads)->Apply(smallSizes);

void removeLoadsToLoadcase(benchmark::State &state) {
    std::vector<VarnelPointLoad *> loads;
    run(
        state,
        [&loads](Project &project, int count) {
            for (VarnelPointLoad *load : loads) delete load;
            SysBase::Loadcase *loadcase = project.manager.giveLoadcaseToNumber(1, true);
            addPointLoads(project.model, count);
            for (VarnelPointLoad *load : project.model.getPointLoads()) load->setLoadcase(loadcase);
            loads.assign(project.model.getPointLoads().begin(), project.model.getPointLoads().end());
            for (int i = 0; i < 10; ++i) project.model.add(new VarnelObjectGroup(std::to_string(i)));
        },
        [](Project &project, int) {
            project.model.removeLoadsToLoadcase(false, project.manager.getLoadcases().front());
        });
    for (VarnelPointLoad *load : loads) delete load;
}
BENCHMARK(removeLoadsToLoadcase)->Apply(sizes);

void copyModel(benchmark::State &state) {
    run(state, plates, [](Project &project, int) {
        VarnelDB copy(&project.manager);
        copy.copy(project.model);
    });
}
BENCHMARK(copyModel)->Apply(smallSizes);

void removeOneByOne(benchmark::State &state) {
    run(
        state,
        [](Project &project, int count) {
            addBeams(project.model, count);
            for (int i = 0; i < 10; ++i) {
                auto *group = new VarnelObjectGroup(std::to_string(i));
                project.model.add(group);
                for (VarnelBeam *beam : project.model.getBeams()) group->add(beam);
            }
        },
        [](Project &project, int) {
            const std::vector<VarnelBeam *> all(project.model.getBeams().begin(),
                                                project.model.getBeams().end());
            for (VarnelBeam *beam : all) project.model.remove(beam, true);
        });
}
BENCHMARK(removeOneByOne)->Apply(smallSizes);

}  // namespace

BENCHMARK_MAIN();
