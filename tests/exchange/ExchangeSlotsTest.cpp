// Derived exchanges are compiled against the order of the virtual operations: moving one breaks them.

#include <gtest/gtest.h>

#include "tests/support/VirtualSlot.h"
#include "varnel/exchange/VarnelExchangeXml.h"
#include "varnel/exchange/VarnelExchangeXmlBeam.h"

namespace {

using varnel::virtualSlot;
using Text = const std::string &;

TEST(ExchangeSlots, ExchangeHasSixteenOperationsInOrder) {
    EXPECT_EQ(virtualSlot(&VarnelExchange::fileOutput), 2);
    EXPECT_EQ(virtualSlot(&VarnelExchange::fileInput), 3);
    EXPECT_EQ(virtualSlot(&VarnelExchange::get), 4);
    EXPECT_EQ(virtualSlot(&VarnelExchange::updateResults), 5);
    EXPECT_EQ(virtualSlot(&VarnelExchange::updateSystem), 6);
    EXPECT_EQ(virtualSlot(&VarnelExchange::loadProjectSettings), 7);
    EXPECT_EQ(virtualSlot(&VarnelExchange::saveProjectSettings), 8);
    EXPECT_EQ(virtualSlot(&VarnelExchange::updateSettings), 9);
    EXPECT_EQ(virtualSlot(&VarnelExchange::open), 10);
    EXPECT_EQ(virtualSlot(&VarnelExchange::close), 11);
    EXPECT_EQ(virtualSlot(&VarnelExchange::updateVector), 12);
    EXPECT_EQ(virtualSlot<void(Text, Text, Text)>(&VarnelExchange::openToAttribute), 13);
    EXPECT_EQ(virtualSlot<void(Text, Text, double)>(&VarnelExchange::openToAttribute), 14);
    EXPECT_EQ(virtualSlot<void(Text, Text, int)>(&VarnelExchange::openToAttribute), 15);
    EXPECT_EQ(virtualSlot(&VarnelExchange::flush), 16);
}

TEST(ExchangeSlots, TreeAddsTheUnsignedKeyedOpen) {
    EXPECT_EQ(virtualSlot<void(Text, Text, std::uint64_t)>(&VarnelExchangeXmlBase::openToAttribute), 17);
}

TEST(ExchangeSlots, DocumentAddsThirtyFiveOperationsInOrder) {
    using X = VarnelExchangeXml;
    const int slots[] = {
        virtualSlot(&X::treeToDatabase),
        virtualSlot(&X::getExchangeBeam),
        virtualSlot(&X::updateOneSubSystem),
        virtualSlot(&X::updateOneObjectState),
        virtualSlot(&X::updateOnePlateState),
        virtualSlot(&X::updateOneBeamState),
        virtualSlot(&X::updateOneConstructionStage),
        virtualSlot(&X::updateOneHole),
        virtualSlot(&X::updateOnePlate),
        virtualSlot(&X::updateOnePointBoundary),
        virtualSlot(&X::updateOneLineBoundary),
        virtualSlot(&X::updateOneLoadcase),
        virtualSlot(&X::updateOnePointLoad),
        virtualSlot(&X::updateOneLineLoad),
        virtualSlot(&X::updateOneAreaLoad),
        virtualSlot(&X::updateResultsToSubSystem),
        virtualSlot(&X::updateOneLineBoundaryResult),
        virtualSlot<void(KzXmlData *)>(&X::loadProjectSettings),
        virtualSlot(&X::updateOneObjectGroup),
        virtualSlot(&X::createSettings),
        virtualSlot(&X::createOneConstructionStage),
        virtualSlot(&X::createOnePlate),
        virtualSlot(&X::createOneBeamState),
        virtualSlot(&X::createOnePlateState),
        virtualSlot(&X::createOneSubSystem),
        virtualSlot(&X::createOnePointBoundary),
        virtualSlot(&X::createOneLineBoundary),
        virtualSlot(&X::createOneHole),
        virtualSlot(&X::createOnePointLoad),
        virtualSlot(&X::createOneLineLoad),
        virtualSlot(&X::createOneAreaLoad),
        virtualSlot(&X::createOneObjectGroup),
        virtualSlot(&X::createOneLoadDistributionArea),
        virtualSlot(&X::createOneLoadcase),
        virtualSlot(&X::updateThumbnail),
    };
    int expected = 18;
    for (const int slot : slots) EXPECT_EQ(slot, expected++);
    EXPECT_EQ(expected, 18 + 35);
}

TEST(ExchangeSlots, ExchangeOfBeamsHasItsOperationsInOrder) {
    EXPECT_EQ(virtualSlot(&VarnelExchangeXmlObject::create), 0);
    EXPECT_EQ(virtualSlot(&VarnelExchangeXmlObject::update), 1);
    EXPECT_EQ(virtualSlot(&VarnelExchangeXmlBeam::create), 0);
    EXPECT_EQ(virtualSlot(&VarnelExchangeXmlBeam::update), 1);
    EXPECT_EQ(virtualSlot(&VarnelExchangeXmlBeam::readOneBeam), 2);
    EXPECT_EQ(virtualSlot(&VarnelExchangeXmlBeam::updateOneBeam), 3);
    EXPECT_EQ(virtualSlot(&VarnelExchangeXmlBeam::createOneBeam), 4);
}

}  // namespace
