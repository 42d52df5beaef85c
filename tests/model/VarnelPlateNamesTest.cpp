#include <gtest/gtest.h>

#include <memory>
#include <stdexcept>
#include <string>

#include "varnel/members/VarnelBeam.h"
#include "varnel/members/VarnelPlate.h"
#include "varnel/model/VarnelDB.h"
#include "varnel/process/VarnelDatabaseFactory.h"

TEST(VarnelPlateNames, APlateThatIsNotAddedHasItsNameRegistered) {
    VarnelDB model(nullptr);
    const std::unique_ptr<VarnelPlate> plate(model.givePlate(false));
    EXPECT_EQ(plate->getParent(), &model);
    EXPECT_EQ(plate->getNumber(), 1);
    EXPECT_EQ(plate->getName(), "Platte 1");
    EXPECT_TRUE(model.hasPlatewithName("Platte 1"));
    EXPECT_TRUE(model.getPlates().empty());
}

TEST(VarnelPlateNames, PlatesAndBeamsAreMadeByTheFactoryAndNamedWithTheirNumber) {
    class Plate : public VarnelPlate {
      public:
        Plate() : VarnelPlate(nullptr) {}
        void setDefaultName() override {
            const bool listed = getParent()->contains(this);
            setName((listed ? "listed " : "new ") + std::to_string(getNumber()));
        }
    };
    class Beam : public VarnelBeam {};
    class Factory final : public VarnelDatabaseFactory {
        VarnelPlate *givePlate() override { return new Plate; }
        VarnelBeam *giveBeam() override { return new Beam; }
    };
    class Model : public Varnel {
      public:
        Model() : Varnel(nullptr) { setDBaseFactory(std::make_shared<Factory>()); }
    } model;
    EXPECT_EQ(model.givePlate(true)->getName(), "new 1");
    EXPECT_EQ(model.givePlate(true)->getName(), "new 2");
    EXPECT_TRUE(model.hasPlatewithName("new 2"));
    EXPECT_NE(dynamic_cast<Beam *>(model.giveBeam(true)), nullptr);
    const std::unique_ptr<VarnelBeam> free(model.giveBeam(KzVector3D(), KzVector3D(1, 0, 0)));
    EXPECT_NE(dynamic_cast<Beam *>(free.get()), nullptr);
    EXPECT_EQ(free->getNumber(), 2);
}

TEST(VarnelPlateNames, APlateThatCannotBeNamedIsFreed) {
    class Plate : public VarnelPlate {
      public:
        explicit Plate(int &deaths) : VarnelPlate(nullptr), deaths_(deaths) {}
        ~Plate() override { ++deaths_; }
        void setDefaultName() override { throw std::runtime_error("no name"); }

      private:
        int &deaths_;
    };
    class Factory final : public VarnelDatabaseFactory {
      public:
        explicit Factory(int &deaths) : deaths_(deaths) {}
        VarnelPlate *givePlate() override { return new Plate(deaths_); }

      private:
        int &deaths_;
    };
    class Model : public Varnel {
      public:
        explicit Model(int &deaths) : Varnel(nullptr) { setDBaseFactory(std::make_shared<Factory>(deaths)); }
    };
    int deaths = 0;
    Model model(deaths);
    EXPECT_THROW(model.givePlate(true), std::runtime_error);
    EXPECT_EQ(deaths, 1);
    EXPECT_TRUE(model.getPlates().empty());
    EXPECT_FALSE(model.systemChanged());
}

TEST(VarnelPlateNames, RenamedPlatesAreKnownByTheirNewNameAlone) {
    VarnelDB model(nullptr);
    VarnelPlate *plate = model.givePlate(true);
    plate->setName("Roof");
    EXPECT_TRUE(model.hasPlatewithName("Roof"));
    EXPECT_FALSE(model.hasPlatewithName("Platte 1"));
    model.updatePlateName("", "Roof", nullptr);
    EXPECT_FALSE(model.hasPlatewithName("Roof"));
    EXPECT_FALSE(model.hasPlatewithName("")) << "the entry has no plate";
}

TEST(VarnelPlateNames, RemovingAPlateErasesItsNameFromANamesakeToo) {
    VarnelDB model(nullptr);
    VarnelPlate *first = model.givePlate(true);
    VarnelPlate *second = model.givePlate(true);
    first->setName("Roof");
    second->setName("Roof");
    model.remove(first, true);
    EXPECT_FALSE(model.hasPlatewithName("Roof"));
    EXPECT_EQ(model.findPlateToName("Roof"), second);
}
