// How a manager and what it owns come to life and die.

#include <gtest/gtest.h>

#include <utility>

#include "tests/support/RecordingServices.h"
#include "varnel/contracts/KzConcrete.h"
#include "varnel/contracts/KzMaterialManager.h"
#include "varnel/contracts/KzReinfLine.h"
#include "varnel/contracts/KzReinfLineList.h"
#include "varnel/contracts/KzReinfMeshList.h"
#include "varnel/contracts/KzReinfStockMesh.h"
#include "varnel/contracts/SDBSectionLine.h"
#include "varnel/contracts/SDBSectionManager.h"
#include "varnel/contracts/SysBase/Loadcase.h"
#include "varnel/members/VarnelBeam.h"
#include "varnel/members/VarnelPlate.h"
#include "varnel/model/VarnelDB.h"
#include "varnel/model/VarnelSubSystem.h"
#include "varnel/process/VarnelManager.h"

namespace {

using recording::Calls;

/// Notes its death in the record of a factory.
template <class Base>
class Mortal : public Base {
  public:
    template <class... Arguments>
    Mortal(recording::Script &script, const std::string &name, Arguments &&...arguments)
        : Base(std::forward<Arguments>(arguments)...), deaths_(script), name_(name) {}
    ~Mortal() override { deaths_.note("~" + name_); }

  private:
    recording::Script &deaths_;
    std::string name_;
};

class MortalFactory : public recording::Factory {
    template <class Service>
    Service *give(const char *name) const {
        return new Mortal<Service>(script, name, script);
    }
    VarnelCalculator *giveCalculator() const override { return give<recording::Calculator>("calculator"); }
    VarnelConverter *giveConverter() const override { return give<recording::Converter>("converter"); }
    VarnelDesigner *giveDesigner() const override { return give<recording::Designer>("designer"); }
    VarnelExchange *giveExchange() const override { return give<recording::Exchange>("exchange"); }
    VarnelDataChecker *giveDataChecker() override { return give<recording::DataChecker>("checker"); }
    Varnel *giveDatabase() const override { return new Mortal<VarnelDB>(script, "model", getManager()); }
};

TEST(VarnelManagerLife, EverythingDiesInOrder) {
    MortalFactory factory;
    {
        VarnelManager manager(&factory);
        manager.getDataChecker();
        manager.getExchange();
        manager.getConverter();
        manager.getCalculator();
        manager.getDesigner();
        manager.getErrorHandler();
        recording::Script &script = factory.script;
        auto *generated = new Mortal<SDBSectionLine>(script, "generated section", "generated", 0.1);
        generated->setUserDefined(false);
        manager.getDgnMeshList()->addMesh(new Mortal<KzReinfStockMesh>(script, "mesh", "M", 1.0, 1.0));
        manager.getDgnList()->add(new Mortal<KzReinfLine>(script, "line", 1, "L"));
        manager.getSectionManager()->add(new Mortal<SDBSectionLine>(script, "section", "own", 0.1));
        manager.getSectionManager()->add(generated);
        manager.getMaterialManager()->add(new Mortal<KzConcrete>(script, "material", "C", 2500.0, 25.0));
        auto *loadcase = new Mortal<SysBase::Loadcase>(script, "load case", 1);
        manager.add(loadcase);
        // Things in use do not ask for their users, who are dead by then.
        VarnelPlate *plate = manager.getDatabase()->givePlate(true);
        plate->giveAreaLoad(static_cast<SysBase::LoadcaseData::Type>(2), loadcase);
        manager.getDatabase()->giveBeam(true)->setSection(generated, 0);
        script.take();
    }
    EXPECT_EQ(factory.script.take(),
              (Calls{"~designer", "~calculator", "~converter", "~exchange", "~checker", "~model", "~material",
                     "~generated section", "~section", "~mesh", "~line", "~load case"}));
}

TEST(VarnelManagerLife, AModelThatDiesWithItFindsNeitherACurrentModelNorErrors) {
    static const Varnel *model;
    static std::size_t errors;
    class Asking : public VarnelDB {
      public:
        using VarnelDB::VarnelDB;
        ~Asking() override {
            model = getManager()->getDatabase();
            errors = getManager()->getErrorList().size();
        }
    };
    class AskingFactory : public VarnelFactory {
        Varnel *giveDatabase() const override { return new Asking(getManager()); }
    } factory;
    {
        VarnelManager manager(&factory);
        manager.add(new VarnelSubSystem("dies after the current one", &factory, nullptr), nullptr);
        manager.addError("old");
        model = manager.getDatabase();
        errors = manager.getErrorList().size();
        EXPECT_NE(model, nullptr);
        EXPECT_EQ(errors, 1u);
    }
    EXPECT_EQ(model, nullptr);
    EXPECT_EQ(errors, 0u);
}

TEST(VarnelManagerLife, AConverterThatAModelAskedForWhileItWasMadeIsMadeAnew) {
    class Eager : public VarnelDB {
      public:
        using VarnelDB::VarnelDB;
        void initInstance() override { getManager()->getConverter(); }
    };
    class EagerFactory : public MortalFactory {
        Varnel *giveDatabase() const override { return new Eager(getManager()); }
    } factory;
    VarnelManager manager(&factory);
    EXPECT_EQ(factory.script.take(),
              (Calls{"converter.initInstance", "converter.setProjectPath", "~converter"}));
    manager.getConverter();
    EXPECT_EQ(factory.script.take(), (Calls{"converter.initInstance", "converter.setProjectPath"}));
}

TEST(VarnelManagerLife, AModelThatDiesWithItFindsNoDeadServiceAndANewOneDiesToo) {
    class Asking : public VarnelDB {
      public:
        using VarnelDB::VarnelDB;
        ~Asking() override { getManager()->getTolerance(); }
    };
    class AskingFactory : public MortalFactory {
        Varnel *giveDatabase() const override { return new Asking(getManager()); }
    } factory;
    {
        VarnelManager manager(&factory);
        manager.getTolerance();
    }
    const Calls oneLife{"converter.initInstance", "converter.setProjectPath", "~converter"};
    Calls twice = oneLife;
    twice.insert(twice.end(), oneLife.begin(), oneLife.end());
    EXPECT_EQ(factory.script.take(), twice);
}

TEST(VarnelManagerLife, ResetDeletesConverterCalculatorAndDesigner) {
    MortalFactory factory;
    VarnelManager manager(&factory);
    manager.getDataChecker();
    manager.getExchange();
    manager.getDesigner();
    manager.getCalculator();
    manager.getConverter();
    factory.script.take();
    manager.reset();
    manager.reset();
    EXPECT_EQ(factory.script.take(), (Calls{"~converter", "~calculator", "~designer"}));
}

}  // namespace
