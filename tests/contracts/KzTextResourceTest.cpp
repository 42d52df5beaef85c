#include "varnel/contracts/KzTextResource.h"

#include <gtest/gtest.h>

#include "varnel/contracts/KzStandard.h"

TEST(KzTextResource, SpeaksEnglishUntilAHostSetsItsOwnTexts) {
    const struct {
        unsigned int id;
        const char *text;
    } texts[] = {{3039, "Own weight"}, {4627, "Load"}, {5571, "Group "}, {4175, "Beam"}, {4171, "Bar"}};
    for (const auto &entry : texts) {
        SCOPED_TRACE(entry.id);
        EXPECT_EQ(KzTextResource::get()->loadString(entry.id), entry.text);
    }
    KzTextResource::get()->setString(4171, "Stab");
    EXPECT_EQ(KzTextResource::get()->loadString(4171), "Stab");
    KzTextResource::get()->setString(4171, "Bar");
}

TEST(KzTextResource, IsEmptyForAnUnknownNumber) {
    EXPECT_EQ(KzTextResource::get()->loadString(0), "");
    EXPECT_EQ(KzTextResource::get()->loadString(4294967295U), "");
}

TEST(KzTextResource, TakesNewNumbers) {
    KzTextResource::get()->setString(900001, "Column");
    EXPECT_EQ(KzTextResource::get()->loadString(900001), "Column");
}

TEST(KzStandard, KeepsTheModeOfTheProcess) {
    const Standard::Mode before = KzStandard::get()->getMode();
    KzStandard::get()->setMode(static_cast<Standard::Mode>(3));
    EXPECT_EQ(KzStandard::get()->getMode(), 3);
    KzStandard::get()->setMode(-4);
    EXPECT_EQ(KzStandard::get()->getMode(), -4);
    KzStandard::get()->setMode(before);
}
