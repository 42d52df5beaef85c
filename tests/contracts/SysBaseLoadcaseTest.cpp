#include <gtest/gtest.h>

#include <functional>
#include <type_traits>
#include <utility>

#include "tests/support/VirtualSlot.h"
#include "varnel/contracts/SysBase/Loadcase.h"
#include "varnel/contracts/SysBase/Manager.h"

using SysBase::Loadcase;
using SysBase::LoadcaseData;

static_assert(std::has_virtual_destructor<Loadcase>::value, "deleted through its base");
static_assert(
    std::is_same<decltype(std::declval<const Loadcase &>() == std::declval<const Loadcase &>()), int>::value,
    "1 or 0");

TEST(Loadcase, BeginsAsAnUnusedPrimaryDeadCaseWithoutName) {
    const Loadcase loadcase(7);
    EXPECT_EQ(loadcase.getNumber(), 7);
    EXPECT_EQ(loadcase.getName(), "");
    EXPECT_EQ(loadcase.getType(), 1);
    EXPECT_FALSE(loadcase.isOwnWeight());
    EXPECT_TRUE(loadcase.isPrimary());
    EXPECT_FALSE(loadcase.doCalculateEigen());
    EXPECT_EQ(loadcase.getFlag(), 1);
}

TEST(Loadcase, KeepsWhatIsSet) {
    Loadcase loadcase(1);
    loadcase.setName("Snow");
    loadcase.setType(LoadcaseData::LIVE);
    loadcase.setOwnWeight(true);
    loadcase.setPrimary(false);
    loadcase.enableCalculateEigen(true);
    loadcase.setFlag(0);
    EXPECT_EQ(loadcase.getName(), "Snow");
    EXPECT_EQ(loadcase.getType(), 2);
    EXPECT_TRUE(loadcase.isOwnWeight());
    EXPECT_FALSE(loadcase.isPrimary());
    EXPECT_TRUE(loadcase.doCalculateEigen());
    EXPECT_EQ(loadcase.getFlag(), 0);
}

TEST(Loadcase, PassesUnknownTypesThrough) {
    Loadcase loadcase(1);
    loadcase.setType(-12345);
    EXPECT_EQ(loadcase.getType(), -12345);
}

namespace {

struct Change {
    const char *name;
    std::function<void(Loadcase &)> apply;
    bool counts;
};

const Change changes[] = {
    {"name", [](Loadcase &loadcase) { loadcase.setName("other"); }, true},
    {"same name", [](Loadcase &loadcase) { loadcase.setName(""); }, false},
    {"type", [](Loadcase &loadcase) { loadcase.setType(2); }, true},
    {"same type", [](Loadcase &loadcase) { loadcase.setType(1); }, false},
    {"own weight", [](Loadcase &loadcase) { loadcase.setOwnWeight(true); }, true},
    {"same own weight", [](Loadcase &loadcase) { loadcase.setOwnWeight(false); }, false},
    {"primary", [](Loadcase &loadcase) { loadcase.setPrimary(false); }, true},
    {"same primary", [](Loadcase &loadcase) { loadcase.setPrimary(true); }, false},
    {"eigenvalues", [](Loadcase &loadcase) { loadcase.enableCalculateEigen(true); }, true},
    {"same eigenvalues", [](Loadcase &loadcase) { loadcase.enableCalculateEigen(false); }, false},
    {"mark of the automation", [](Loadcase &loadcase) { loadcase.setFlag(0); }, false},
};

}  // namespace

TEST(Loadcase, RaisesTheFlagOfItsManagerWhenAValueDiffers) {
    for (const Change &change : changes) {
        SCOPED_TRACE(change.name);
        SysBase::Manager manager;
        Loadcase *loadcase = manager.giveLoadcaseToNumber(1, true);
        ASSERT_FALSE(manager.hasLoadChanged());
        change.apply(*loadcase);
        EXPECT_EQ(manager.hasLoadChanged(), change.counts);
        manager.setLoadChanged(false);
        EXPECT_FALSE(manager.hasLoadChanged());
    }
}

TEST(Loadcase, EqualsByAllButTheMarkOfTheAutomation) {
    const Loadcase plain(3);
    Loadcase other(3);
    other.setFlag(0);
    EXPECT_EQ(plain == other, 1);
    EXPECT_EQ(plain == Loadcase(4), 0);
    for (const Change &change : changes) {
        if (!change.counts) continue;
        SCOPED_TRACE(change.name);
        Loadcase changed(3);
        change.apply(changed);
        EXPECT_EQ(plain == changed, 0);
    }
}

TEST(Loadcase, CopyBelongsToNoManager) {
    SysBase::Manager manager;
    Loadcase *source = manager.giveLoadcaseToName("Wind");
    source->setType(5);
    manager.setLoadChanged(false);
    Loadcase copy(*source);
    EXPECT_EQ(copy == *source, 1);
    copy.setName("Snow");
    EXPECT_FALSE(manager.hasLoadChanged());
    EXPECT_EQ(manager.giveLoadcaseToName("Wind"), source);
    EXPECT_EQ(manager.getLoadcases().size(), 1U);
}

TEST(Loadcase, VirtualOperationsStandInTheirSlots) {
    EXPECT_EQ(varnel::virtualSlot(&Loadcase::operator==), 2);
}
