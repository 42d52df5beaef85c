// Projects worked on at the same time, each on a thread of its own. What all projects of a process share, the
// stocks, the texts and the defaults, is only read here, and hosts with several threads are to do the same.

#include <gtest/gtest.h>

#include <string>
#include <thread>
#include <vector>

#include "tests/support/RandomModel.h"
#include "tests/support/RecordingServices.h"
#include "tests/support/Survivors.h"
#include "tests/support/TemporaryFolder.h"
#include "varnel/exchange/VarnelExchangeXml.h"
#include "varnel/model/Varnel.h"
#include "varnel/process/VarnelManager.h"

namespace {

using varnel::test::RandomModel;
using varnel::test::survivors;
using varnel::test::TemporaryFolder;

/// Leaves the defaults of the process as they are.
class LocalExchange : public VarnelExchangeXml {
    void createSettings(KzXmlData *) override {}
};

class Factory : public recording::Factory {
    VarnelExchange *giveExchange() const override { return new LocalExchange; }
};

/// Runs, saves and reads some projects and tells what came of them.
std::string work(unsigned firstSeed, const std::string &file) {
    std::string told;
    for (unsigned seed = firstSeed; seed < firstSeed + 8; ++seed) {
        Factory factory;
        VarnelManager manager(&factory);
        RandomModel(manager, seed, true).fill();
        manager.setProjectPath(file);
        manager.setup();
        told += "update " + std::to_string(manager.update());
        manager.getDatabase()->mergePointsInVarnelObjects();
        manager.refresh();
        manager.output(file.c_str());
        Factory nextFactory;
        VarnelManager next(&nextFactory);
        next.input(file.c_str());
        told += survivors(next);
        for (const std::string &call : factory.script.take()) told += call + "\n";
    }
    return told;
}

TEST(TwoManagers, WorkOnTheirOwnThreadsAsTheyDoOneAfterTheOther) {
    const TemporaryFolder folder;
    constexpr unsigned count = 2;
    std::vector<std::string> together(count), alone(count);
    std::vector<std::thread> threads;
    for (unsigned i = 0; i < count; ++i) {
        const std::string file = folder.file(std::to_string(i) + ".xml");
        threads.emplace_back([&result = together[i], i, file] { result = work(100 * i, file); });
    }
    for (std::thread &thread : threads) thread.join();
    for (unsigned i = 0; i < count; ++i) alone[i] = work(100 * i, folder.file(std::to_string(i) + ".xml"));
    EXPECT_GT(alone[0].size(), 1000u);
    for (unsigned i = 0; i < count; ++i) EXPECT_EQ(together[i], alone[i]);
}

}  // namespace
