// Documents that are damaged at random, but well-formed: whatever they hold becomes a model or an error, the
// model runs, and the document that is written of it comes back.

#include <gtest/gtest.h>

#include <fstream>
#include <sstream>
#include <string>

#include "tests/support/DamagedDocument.h"
#include "tests/support/DocumentDifference.h"
#include "tests/support/ProcessDefaults.h"
#include "tests/support/RecordingServices.h"
#include "varnel/varnel.h"

namespace {

using varnel::test::DamagedDocument;
using varnel::test::Random;

struct Project {
    Project() {
        manager.setProjectPath(std::string("damaged.xml"));
    }  // without a folder: runs stay where they are

    VarnelExchangeXml &exchange() { return static_cast<VarnelExchangeXml &>(*manager.getExchange()); }
    /// Whether it was read to its end.
    bool read(const std::string &text) {
        std::istringstream stream(text);
        exchange().getTree()->buildOfStream(stream);
        try {
            exchange().get(&manager);
        } catch (const Tools::Error &) {
            return false;  // such as an unknown material; what came before it is there
        }
        return true;
    }
    std::string write() {
        manager.setup();
        exchange().updateSystem(&manager);
        exchange().updateResults(&manager);
        std::ostringstream stream;
        exchange().getTree()->putToStream(stream, true);
        return stream.str();
    }

    recording::DocumentFactory factory;
    VarnelManager manager{&factory};
};

/// What a fresh project makes of a document.
std::string readAndWrite(const std::string &text) {
    resetDefaults();
    Project project;
    project.read(text);
    return project.write();
}

/// All that a host can ask of a model that came from a file.
void run(Project &project) {
    Varnel &model = *project.manager.getDatabase();
    project.manager.setup();
    project.manager.update();
    model.setupBoundaryReferences();
    model.mergePointsInVarnelObjects();
    KzVector3D min, max;
    model.updateMinMax(&min, &max, KzMatrix44());
    VarnelDB copied(&project.manager);
    copied.copy(model);
    for (VarnelBeam *beam : model.getBeams())
        if (beam) beam->getVolumen();
}

/// The parameter is a document of the project.
class DocumentDamage : public testing::TestWithParam<const char *> {
  protected:
    void SetUp() override {
        std::ifstream stream(GetParam(), std::ios::binary);
        ASSERT_TRUE(whole.buildOfStream(stream));
    }

    KzXmlTree whole{"NONE"};
};

TEST_P(DocumentDamage, IsReadRunAndWritten) {
    int complete = 0;
    for (unsigned seed = 0; seed < 200; ++seed) {
        SCOPED_TRACE("seed " + std::to_string(seed));
        const ProcessDefaults defaults;
        Random random(seed);
        DamagedDocument document(whole.getRoot());
        for (int harms = 1 + random.below(12); harms > 0; --harms) document.damage(random);
        Project project;
        const bool read = project.read(document.text());
        const std::string written = project.write();
        run(project);
        if (!read) continue;  // what was not read stands in the document as it was
        ++complete;
        const std::string second = readAndWrite(written);
        EXPECT_EQ(varnel::test::difference(second, readAndWrite(second)), "");
    }
    EXPECT_GT(complete, 40);
    EXPECT_LT(complete, 200);
}

INSTANTIATE_TEST_SUITE_P(Documents, DocumentDamage,
                         testing::Values("tests/documents/everything.xml", "tests/documents/older_forms.xml",
                                         "examples/documents/house.xml"));

}  // namespace
