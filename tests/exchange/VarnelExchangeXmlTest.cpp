#include "varnel/exchange/VarnelExchangeXml.h"

#include <gtest/gtest.h>

#include <type_traits>

#include "tests/support/Document.h"
#include "tests/support/VirtualSlot.h"
#include "varnel/exchange/VarnelExchangeXmlBeam.h"
#include "varnel/geometry/VarnelStraight.h"

namespace {

using varnel::virtualSlot;
using Xml = VarnelExchangeXml;

constexpr int inherited = 17;  // slots up to the tree's own operations, the destructor counted as one

TEST(VarnelExchangeXml, InheritedOperationsKeepTheirPlaces) {
    EXPECT_EQ(virtualSlot(&Xml::get), 4);
    EXPECT_EQ(virtualSlot(&Xml::updateResults), 5);
    EXPECT_EQ(virtualSlot(&Xml::updateSystem), 6);
    EXPECT_EQ(virtualSlot<void(const std::string &)>(&Xml::loadProjectSettings), 7);
    EXPECT_EQ(virtualSlot(&Xml::saveProjectSettings), 8);
    EXPECT_EQ(virtualSlot(&Xml::updateSettings), 9);
}

TEST(VarnelExchangeXml, WritersStandInTheirOrder) {
    EXPECT_EQ(virtualSlot(&Xml::treeToDatabase), inherited + 1);
    EXPECT_EQ(virtualSlot(&Xml::getExchangeBeam), inherited + 2);
    EXPECT_EQ(virtualSlot(&Xml::updateOneSubSystem), inherited + 3);
    EXPECT_EQ(virtualSlot(&Xml::updateOneObjectState), inherited + 4);
    EXPECT_EQ(virtualSlot(&Xml::updateOnePlateState), inherited + 5);
    EXPECT_EQ(virtualSlot(&Xml::updateOneBeamState), inherited + 6);
    EXPECT_EQ(virtualSlot(&Xml::updateOneConstructionStage), inherited + 7);
    EXPECT_EQ(virtualSlot(&Xml::updateOneHole), inherited + 8);
    EXPECT_EQ(virtualSlot(&Xml::updateOnePlate), inherited + 9);
    EXPECT_EQ(virtualSlot(&Xml::updateOnePointBoundary), inherited + 10);
    EXPECT_EQ(virtualSlot(&Xml::updateOneLineBoundary), inherited + 11);
    EXPECT_EQ(virtualSlot(&Xml::updateOneLoadcase), inherited + 12);
    EXPECT_EQ(virtualSlot(&Xml::updateOnePointLoad), inherited + 13);
    EXPECT_EQ(virtualSlot(&Xml::updateOneLineLoad), inherited + 14);
    EXPECT_EQ(virtualSlot(&Xml::updateOneAreaLoad), inherited + 15);
    EXPECT_EQ(virtualSlot(&Xml::updateResultsToSubSystem), inherited + 16);
    EXPECT_EQ(virtualSlot(&Xml::updateOneLineBoundaryResult), inherited + 17);
    EXPECT_EQ(virtualSlot<void(KzXmlData *)>(&Xml::loadProjectSettings), inherited + 18);
    EXPECT_EQ(virtualSlot(&Xml::updateOneObjectGroup), inherited + 19);
}

TEST(VarnelExchangeXml, ReadersStandInTheirOrder) {
    EXPECT_EQ(virtualSlot(&Xml::createSettings), inherited + 20);
    EXPECT_EQ(virtualSlot(&Xml::createOneConstructionStage), inherited + 21);
    EXPECT_EQ(virtualSlot(&Xml::createOnePlate), inherited + 22);
    EXPECT_EQ(virtualSlot(&Xml::createOneBeamState), inherited + 23);
    EXPECT_EQ(virtualSlot(&Xml::createOnePlateState), inherited + 24);
    EXPECT_EQ(virtualSlot(&Xml::createOneSubSystem), inherited + 25);
    EXPECT_EQ(virtualSlot(&Xml::createOnePointBoundary), inherited + 26);
    EXPECT_EQ(virtualSlot(&Xml::createOneLineBoundary), inherited + 27);
    EXPECT_EQ(virtualSlot(&Xml::createOneHole), inherited + 28);
    EXPECT_EQ(virtualSlot(&Xml::createOnePointLoad), inherited + 29);
    EXPECT_EQ(virtualSlot(&Xml::createOneLineLoad), inherited + 30);
    EXPECT_EQ(virtualSlot(&Xml::createOneAreaLoad), inherited + 31);
    EXPECT_EQ(virtualSlot(&Xml::createOneObjectGroup), inherited + 32);
    EXPECT_EQ(virtualSlot(&Xml::createOneLoadDistributionArea), inherited + 33);
    EXPECT_EQ(virtualSlot(&Xml::createOneLoadcase), inherited + 34);
    EXPECT_EQ(virtualSlot(&Xml::updateThumbnail), inherited + 35);
}

TEST(VarnelExchangeXml, OperationsOnListsAreNotVirtual) {
    EXPECT_EQ(virtualSlot(&Xml::updatePlates), -1);
    EXPECT_EQ(virtualSlot(&Xml::updatePointBoundaries), -1);
    EXPECT_EQ(virtualSlot(&Xml::readOnePointLoad), -1);
    EXPECT_EQ(virtualSlot(&Xml::updateArea), -1);
    EXPECT_EQ(virtualSlot(&Xml::createObjectGroups), -1);
}

/// Opens what a derived exchange may use.
class Derived : public VarnelExchangeXml {
  public:
    using VarnelExchangeXml::getExBeam;
    using VarnelExchangeXml::getMaterialManager;
    using VarnelExchangeXml::setExBeam;
};

TEST(VarnelExchangeXml, ExchangeOfBeamsIsMadeOnceAndKept) {
    Derived exchange;
    EXPECT_EQ(exchange.getExBeam(), nullptr);
    VarnelExchangeXmlBeam *beams = exchange.getExchangeBeam();
    ASSERT_NE(beams, nullptr);
    EXPECT_EQ(beams->getExXml(), &exchange);
    EXPECT_EQ(exchange.getExchangeBeam(), beams);
    EXPECT_EQ(exchange.getExBeam(), beams);
}

TEST(VarnelExchangeXml, AnotherExchangeOfBeamsTakesThePlace) {
    class Counted : public VarnelExchangeXmlBeam {
      public:
        Counted(VarnelExchangeXml *exchange, int &alive) : VarnelExchangeXmlBeam(exchange), alive_(alive) {
            ++alive_;
        }
        ~Counted() override { --alive_; }

      private:
        int &alive_;
    };
    int alive = 0;
    {
        Derived exchange;
        auto *first = new Counted(&exchange, alive);
        exchange.setExBeam(first);
        exchange.setExBeam(first);
        EXPECT_EQ(exchange.getExchangeBeam(), first);
        exchange.setExBeam(new Counted(&exchange, alive));
        EXPECT_EQ(alive, 1);
        exchange.setExBeam(nullptr);
        EXPECT_EQ(alive, 0);
        EXPECT_NE(exchange.getExchangeBeam(), nullptr);
        exchange.setExBeam(new Counted(&exchange, alive));
    }
    EXPECT_EQ(alive, 0);
}

TEST(VarnelExchangeXml, MaterialsAreThoseOfTheManager) {
    Document document;
    Derived exchange;
    EXPECT_EQ(exchange.getMaterialManager(), nullptr);
    exchange.setManager(&document.manager);
    EXPECT_EQ(exchange.getMaterialManager(), document.manager.getMaterialManager());
}

TEST(VarnelExchangeXml, ReadingTakesTheManagerOver) {
    Document document;
    VarnelExchangeXml exchange;
    exchange.get(&document.manager);
    EXPECT_EQ(exchange.getManager(), &document.manager);
    exchange.updateSystem(nullptr);
    EXPECT_EQ(exchange.getManager(), nullptr);
    exchange.updateResults(&document.manager);
    EXPECT_EQ(exchange.getManager(), &document.manager);
}

TEST(VarnelExchangeXml, IsNotCopied) {
    EXPECT_FALSE(std::is_copy_constructible<VarnelExchangeXml>::value);
    EXPECT_FALSE(std::is_copy_assignable<VarnelExchangeXml>::value);
}

}  // namespace
