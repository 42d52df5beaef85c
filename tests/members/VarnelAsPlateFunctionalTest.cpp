#include "varnel/members/VarnelAsPlateFunctional.h"

#include <gtest/gtest.h>

#include <memory>
#include <type_traits>

#include "tests/support/Places.h"

namespace {

/// What a host does to make one.
class Functional : public VarnelAsPlateFunctional {};

using Plain = VarnelAsPlateFunctional;

struct NumberField {
    const char *name;
    double (Plain::*get)() const;
    void (Plain::*set)(double);
    double byDefault;
};

const NumberField numberFields[] = {
    {"AsX", &Plain::getAsX, &Plain::setAsX, 0.0},
    {"AsY", &Plain::getAsY, &Plain::setAsY, 0.0},
    {"AsW", &Plain::getAsW, &Plain::setAsW, 0.0},
    {"DeltaAsj", &Plain::getDeltaAsj, &Plain::setDeltaAsj, 0.0},
    {"AngleX", &Plain::getAngleX, &Plain::setAngleX, 0.0},
    {"AngleY", &Plain::getAngleY, &Plain::setAngleY, 90.0},
};

struct Flag {
    const char *name;
    bool (Plain::*get)() const;
    void (Plain::*set)(bool);
};

const Flag flags[] = {
    {"ShearCapacityExceeded", &Plain::isShearCapacityExceeded, &Plain::setShearCapacityExceeded},
    {"RespectBasicReinforcement", &Plain::getRespectBasicReinforcement, &Plain::setRespectBasicReinforcement},
    {"AsXIsMin", &Plain::getAsXIsMin, &Plain::setAsXIsMin},
    {"AsYIsMin", &Plain::getAsYIsMin, &Plain::setAsYIsMin},
    {"AsXIsMax", &Plain::getAsXIsMax, &Plain::setAsXIsMax},
    {"AsYIsMax", &Plain::getAsYIsMax, &Plain::setAsYIsMax},
    {"AsXIsPres", &Plain::getAsXIsPres, &Plain::setAsXIsPres},
    {"AsYIsPres", &Plain::getAsYIsPres, &Plain::setAsYIsPres},
    {"AsXIsPunch", &Plain::getAsXIsPunch, &Plain::setAsXIsPunch},
    {"AsYIsPunch", &Plain::getAsYIsPunch, &Plain::setAsYIsPunch},
};

Functional fullFunctional() {
    Functional full;
    double value = 1.5;
    for (const NumberField &field : numberFields) (full.*field.set)(value++);
    for (const Flag &flag : flags) (full.*flag.set)(true);
    full.setResultIndex(3);
    full.setAsLoopMode(4);
    full.setPosition(1.0, 2.0, 3.0);
    return full;
}

void expectFull(const Plain &functional) {
    double value = 1.5;
    for (const NumberField &field : numberFields) {
        SCOPED_TRACE(field.name);
        EXPECT_EQ(value++, (functional.*field.get)());
    }
    for (const Flag &flag : flags) {
        SCOPED_TRACE(flag.name);
        EXPECT_TRUE((functional.*flag.get)());
    }
    EXPECT_EQ(3, functional.getResultIndex());
    EXPECT_EQ(4, functional.getAsLoopMode());
    EXPECT_EQ(KzVector3D(1.0, 2.0, 3.0), functional.getPosition());
}

TEST(VarnelAsPlateFunctional, IsMadeByDerivingOrCopyingOnly) {
    EXPECT_FALSE(std::is_default_constructible<VarnelAsFunctional>::value);
    EXPECT_FALSE(std::is_default_constructible<VarnelAsPlateFunctional>::value);
    EXPECT_TRUE(std::is_copy_constructible<VarnelAsPlateFunctional>::value);
}

TEST(VarnelAsPlateFunctional, IsBornWithDefaults) {
    const Functional functional;
    for (const NumberField &field : numberFields) {
        SCOPED_TRACE(field.name);
        EXPECT_EQ(field.byDefault, (functional.*field.get)());
    }
    for (const Flag &flag : flags) {
        SCOPED_TRACE(flag.name);
        EXPECT_FALSE((functional.*flag.get)());
    }
    EXPECT_EQ(0, functional.getResultIndex());
    EXPECT_EQ(0, functional.getAsLoopMode());
    EXPECT_EQ(KzVector3D(), functional.getPosition());
}

TEST(VarnelAsPlateFunctional, KeepsEachValueInAFieldOfItsOwn) {
    expectFull(fullFunctional());
    for (const Flag &flag : flags) {
        SCOPED_TRACE(flag.name);
        Functional functional;
        (functional.*flag.set)(true);
        for (const Flag &other : flags)
            EXPECT_EQ(other.get == flag.get, (functional.*other.get)()) << other.name;
    }
}

TEST(VarnelAsPlateFunctional, TakesItsPositionAsAVectorToo) {
    Functional functional;
    functional.setPosition(KzVector3D(4.0, 5.0, 6.0));
    EXPECT_EQ(KzVector3D(4.0, 5.0, 6.0), functional.getPosition());
}

TEST(VarnelAsPlateFunctional, CopiesTakeEveryField) {
    auto source = std::make_unique<Functional>(fullFunctional());
    const VarnelAsPlateFunctional copy(*source);
    Functional assigned;
    assigned = *source;
    source.reset();
    expectFull(copy);
    expectFull(assigned);
    const Functional &same = assigned;
    assigned = same;
    expectFull(assigned);
}

TEST(VarnelAsPlateFunctional, IsDeletedThroughItsBase) {
    struct Counted : VarnelAsPlateFunctional {
        explicit Counted(int &deaths) : deaths_(deaths) {}
        Counted(const Counted &) = delete;
        Counted &operator=(const Counted &) = delete;
        ~Counted() override { ++deaths_; }
        int &deaths_;
    };
    int deaths = 0;
    std::unique_ptr<VarnelAsFunctional>(new Counted(deaths)).reset();
    EXPECT_EQ(1, deaths);
}

}  // namespace
