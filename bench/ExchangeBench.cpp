// Document to model and back: growth with the number of objects, and the whole way of a 20 MB document beside
// the time in which a peer loads the same text into its tree.

#include <benchmark/benchmark.h>

#include <memory>
#include <pugixml.hpp>
#include <sstream>
#include <string>

#include "bench/DocumentGenerator.h"
#include "varnel/varnel.h"

namespace {

struct Project {
    VarnelFactory factory;
    VarnelManager manager{&factory};
    Varnel &model = *manager.getDatabase();
    VarnelExchangeXml &exchange = static_cast<VarnelExchangeXml &>(*manager.getExchange());

    void build(const std::string &text) {
        std::istringstream stream(text);
        exchange.getTree()->buildOfStream(stream);
    }
};

/// Beams with as many point loads, each of a load case of its own if wanted.
std::string membersDocument(int count, bool ownCases) {
    std::string text = "<VARNEL><SUBSYSTEM NAME=\"System\"><BEAMS>";
    for (int i = 1; i <= count; ++i)
        text += "<BEAM NUMBER=\"" + std::to_string(i) + "\" NAME=\"b\"><START><X>" + std::to_string(i) +
                "</X></START><END><X>" + std::to_string(i + 1) + "</X></END></BEAM>";
    text += "</BEAMS><POINTLOADS>";
    for (int i = 1; i <= count; ++i)
        text += "<POINTLOAD NUMBER=\"" + std::to_string(i) + "\" LC=\"" + std::to_string(ownCases ? i : 1) +
                "\"><POS><X>" + std::to_string(i) + "</X></POS></POINTLOAD>";
    return text + "</POINTLOADS></SUBSYSTEM></VARNEL>";
}

/// The generated document, made once.
const std::string &bigDocument() {
    static const std::string text = varnel::bench::makeDocument(20 << 20);
    return text;
}

void readMembers(benchmark::State &state) {
    const std::string text = membersDocument(static_cast<int>(state.range(0)), state.range(1) != 0);
    for (auto _ : state) {
        state.PauseTiming();
        auto project = std::make_unique<Project>();
        project->build(text);
        state.ResumeTiming();
        project->exchange.get(&project->manager);
        state.PauseTiming();
        project.reset();
        state.ResumeTiming();
    }
    state.SetComplexityN(state.range(0));
}
BENCHMARK(readMembers)
    ->ArgsProduct({{1000, 10000, 100000}, {0, 1}})
    ->ArgNames({"beams", "own_cases"})
    ->Unit(benchmark::kMillisecond);

/// Saving a model of n objects that has just been changed, and one that has not, with results.
void saveMembers(benchmark::State &state) {
    Project project;
    project.build(membersDocument(static_cast<int>(state.range(0)), false));
    project.exchange.get(&project.manager);
    project.manager.setup();
    for (VarnelBeam *beam : project.model.getBeams()) {
        SysBase::BeamResultState *result = beam->giveResultState(1);
        result->add(new SysBase::BeamStressResultantsLocation(0.5, 12.0));
    }
    const bool changed = state.range(1) != 0;
    for (auto _ : state) {
        project.manager.setSystemChanged(changed);
        project.manager.setLoadChanged(changed);
        project.exchange.updateSystem(&project.manager);
        if (!changed) project.exchange.updateResults(&project.manager);
        std::ostringstream stream;
        project.exchange.getTree()->putToStream(stream, true);
        benchmark::DoNotOptimize(stream);
    }
}
BENCHMARK(saveMembers)
    ->ArgsProduct({{1000, 10000, 100000}, {0, 1}})
    ->ArgNames({"beams", "changed"})
    ->Unit(benchmark::kMillisecond);

void peerLoad(benchmark::State &state) {
    for (auto _ : state) {
        std::istringstream stream(bigDocument());
        pugi::xml_document document;
        document.load(stream);
        benchmark::DoNotOptimize(document);
    }
}
BENCHMARK(peerLoad)->Unit(benchmark::kMillisecond);

void documentToModel(benchmark::State &state) {
    for (auto _ : state) {
        auto project = std::make_unique<Project>();
        project->build(bigDocument());
        project->exchange.get(&project->manager);
        state.PauseTiming();
        project.reset();
        state.ResumeTiming();
    }
}
BENCHMARK(documentToModel)->Unit(benchmark::kMillisecond);

/// Numbers of a model as it was read, against the bar of the same peer.
void numbersOfTheModel(benchmark::State &state) {
    Project project;
    project.build(bigDocument());
    project.exchange.get(&project.manager);
    for (auto _ : state) {
        VarnelSetupHelper helper;
        project.model.setupNumbers(helper);
    }
}
BENCHMARK(numbersOfTheModel)->Unit(benchmark::kMillisecond);

void updateSystem(benchmark::State &state) {
    Project project;
    project.build(bigDocument());
    project.exchange.get(&project.manager);
    for (auto _ : state) project.exchange.updateSystem(&project.manager);
}
BENCHMARK(updateSystem)->Unit(benchmark::kMillisecond);

void modelToText(benchmark::State &state) {
    Project project;
    project.build(bigDocument());
    project.exchange.get(&project.manager);
    for (auto _ : state) {
        project.exchange.updateSystem(&project.manager);
        std::ostringstream stream;
        project.exchange.getTree()->putToStream(stream, true);
        benchmark::DoNotOptimize(stream);
    }
}
BENCHMARK(modelToText)->Unit(benchmark::kMillisecond);

}  // namespace

BENCHMARK_MAIN();
