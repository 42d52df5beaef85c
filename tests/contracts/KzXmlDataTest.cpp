#include "varnel/contracts/KzXmlData.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <memory>
#include <random>
#include <type_traits>

#include "varnel/contracts/KzXmlDataUtil.h"
#include "varnel/contracts/KzXmlTree.h"

static_assert(std::has_virtual_destructor<KzXmlData>::value, "hosts derive elements");
static_assert(std::has_virtual_destructor<KzXmlTree>::value, "hosts derive documents");

TEST(KzXmlData, KnowsItsParentWithoutBeingItsChild) {
    KzXmlData root("R", nullptr);
    const auto child = std::make_unique<KzXmlData>("A", &root);
    EXPECT_EQ(child->getParent(), &root);
    EXPECT_EQ(child->getName(), "A");
    EXPECT_TRUE(root.getChildren().empty());
}

TEST(KzXmlData, OwnsItsChildrenInTheOrderInWhichTheyWereAdded) {
    KzXmlData root("R", nullptr);
    auto *first = new KzXmlData("A", &root);
    auto *second = new KzXmlData("B", nullptr);
    root.addChild(first);
    root.addChild(second);
    root.addChild(nullptr);
    ASSERT_EQ(root.getChildren().size(), 2U);
    EXPECT_EQ(root.getChildren()[0], first);
    EXPECT_EQ(root.getChildren()[1], second);
    EXPECT_EQ(second->getParent(), &root);
    EXPECT_EQ(root.findChild("B"), second);
    EXPECT_EQ(root.findChild("C"), nullptr);
}

TEST(KzXmlData, TakesNoChildThatIsOwnedAlready) {
    KzXmlData root("R", nullptr);
    KzXmlData other("O", nullptr);
    auto *child = new KzXmlData("A", &root);
    root.addChild(child);
    root.addChild(child);
    other.addChild(child);
    other.addChild(root.makeChild("B"));
    EXPECT_EQ(root.getChildren().size(), 2U);
    EXPECT_TRUE(other.getChildren().empty());
    EXPECT_EQ(child->getParent(), &root);
}

TEST(KzXmlData, AnElementThatWasNotAddedOutlivesTheDocument) {
    auto tree = std::make_unique<KzXmlTree>("R");
    const auto stray = std::make_unique<KzXmlData>("STRAY", tree->getRoot());
    stray->makeChild("X")->setAttribute("KEY", 1, true);
    tree.reset();
    EXPECT_EQ(stray->getName(), "STRAY");
    EXPECT_EQ(stray->findChild("X")->findAttribute("KEY")->getInteger(), 1);
}

TEST(KzXmlData, FreesElementsThatItsHostDerived) {
    struct Counting : KzXmlData {
        Counting(KzXmlData *parent, int *count) : KzXmlData("C", parent), count_(count) {}
        ~Counting() override { ++*count_; }
        int *count_;
        char more[100] = {};
    };
    int count = 0;
    {
        KzXmlTree tree("R");
        tree.getRoot()->addChild(new Counting(tree.getRoot(), &count));
        tree.getRoot()->findChild("C")->makeChild("X")->addChild(new Counting(nullptr, &count));
        tree.getRoot()->addChild(new Counting(tree.getRoot(), &count));
        tree.remove("C");
        EXPECT_EQ(count, 2);
    }
    EXPECT_EQ(count, 3);
}

TEST(KzXmlData, TextIsReplaced) {
    KzXmlData data("A", nullptr);
    data.setData("text that is longer than a short string");
    EXPECT_EQ(data.getData(), "text that is longer than a short string");
    data.setData(std::string("x"));
    EXPECT_EQ(data.getData(), "x");
    data.setData(-0.125);
    EXPECT_EQ(data.getData(), "-0.125");
}

TEST(KzXmlData, AttributesOfEachKindReplaceOneOfTheSameKey) {
    KzXmlData data("A", nullptr);
    data.setAttribute("K", "text", true);
    auto *attribute = data.findAttribute("K");
    EXPECT_EQ(attribute->getData(), "text");
    data.setAttribute("K", -7, true);
    EXPECT_EQ(attribute->getInteger(), -7);
    data.setAttribute("K", true, true);
    EXPECT_EQ(attribute->getData(), "1");
    data.setAttribute("K", 2.5);
    EXPECT_EQ(attribute->getDouble(), 2.5);
    data.setAttribute("K", std::uint64_t{18446744073709551615U}, true);
    EXPECT_EQ(attribute->getData(), "18446744073709551615");
    data.setAttribute("K", std::string("last"));
    EXPECT_EQ(data.findAttribute("K"), attribute);
    EXPECT_EQ(attribute->getData(), "last");
    EXPECT_EQ(data.findAttribute("k"), nullptr);
}

TEST(KzXmlData, AnAttributeStaysInPlaceWhileOthersAreAdded) {
    KzXmlData data("A", nullptr);
    data.setAttribute("FIRST", 1);
    const auto *first = data.findAttribute("FIRST");
    for (int i = 0; i < 1000; ++i) data.setAttribute("K" + std::to_string(i), i);
    EXPECT_EQ(data.findAttribute("FIRST"), first);
    EXPECT_EQ(data.findAttribute("K999")->getInteger(), 999);
    EXPECT_EQ(data.getAttributes().size(), 1001U);
    EXPECT_EQ(data.getAttributes()[1000]->getKey(), "K999");
}

TEST(KzXmlData, AnAttributeTakesItsOwnTextAndThatOfAnother) {
    KzXmlData data("A", nullptr);
    data.setAttribute("K", "some text that does not fit into a short string");
    const auto *attribute = data.findAttribute("K");
    data.setAttribute("K", std::string_view(attribute->getData()).substr(5, 4));
    EXPECT_EQ(attribute->getData(), "text");
    data.setAttribute(attribute->getData(), attribute->getKey());
    EXPECT_EQ(data.findAttribute("text")->getData(), "K");
}

TEST(KzXmlData, FindTreeLooksAtDirectChildrenAndDeepLevelByLevel) {
    KzXmlData root("R", nullptr);
    KzXmlData *left = root.makeChild("L");
    KzXmlData *deep = left->makeChild("M")->makeChild("X");
    KzXmlData *right = root.makeChild("N");
    EXPECT_EQ(root.findTree("X", false), nullptr);
    EXPECT_EQ(root.findTree("X", true), deep);
    KzXmlData *near = right->makeChild("X");
    EXPECT_EQ(root.findTree("X", true), near);
    EXPECT_EQ(root.findTree("R", true), nullptr);
    EXPECT_EQ(root.findTree("L", false), left);
    EXPECT_EQ(left->findTree("N", true), nullptr);
}

TEST(KzXmlData, RemoveTakesTheFirstOfThatName) {
    KzXmlData root("R", nullptr);
    root.remove("A");
    root.makeChild("A")->setAttribute("N", 1);
    root.makeChild("A")->setAttribute("N", 2);
    root.remove("A");
    ASSERT_EQ(root.getChildren().size(), 1U);
    EXPECT_EQ(root.findChild("A")->findAttribute("N")->getInteger(), 2);
}

TEST(KzXmlAttributeData, ChecksIntegersByValueAndTextsByByte) {
    KzXmlData data("A", nullptr);
    struct Row {
        const char *text;
        int value;
        bool equal;
    };
    for (const Row &row : {Row{"7", 7, true}, Row{" 7 ", 7, true}, Row{"+7", 7, true}, Row{"007", 7, true},
                           Row{"\t7\r\n", 7, true}, Row{"7.0", 7, false}, Row{"7a", 7, false},
                           Row{"", 0, false}, Row{"-", 0, false}, Row{"-0", 0, true}, Row{"- 7", -7, false},
                           Row{"-7", -7, true}, Row{"+-7", -7, false}, Row{"2147483648", 2147483647, false},
                           Row{"-2147483648", -2147483647 - 1, true}, Row{"4294967296", 0, false},
                           Row{"18446744073709551616", 0, false}, Row{"8", 7, false}, Row{"-7", 7, false}}) {
        SCOPED_TRACE(row.text);
        data.setAttribute("K", row.text);
        EXPECT_EQ(data.findAttribute("K")->checkValue(row.value), row.equal);
    }
    data.setAttribute("K", " 7 ");
    EXPECT_FALSE(data.findAttribute("K")->checkValue("7"));
    EXPECT_TRUE(data.findAttribute("K")->checkValue(" 7 "));
    data.setAttribute("K", " 018446744073709551615");
    EXPECT_TRUE(data.findAttribute("K")->checkValue(std::uint64_t{18446744073709551615U}));
    EXPECT_FALSE(data.findAttribute("K")->checkValue(-1));
}

TEST(KzXmlDataUtil, FillsOnlyTheComponentsThatExist) {
    KzXmlData data("V", nullptr);
    double x = 1, y = 2, z = 3;
    EXPECT_FALSE(KzXmlDataUtil::getVector(&data, x, y, z));
    data.makeChild("Y")->setData(" -2.5e0 ");
    EXPECT_TRUE(KzXmlDataUtil::getVector(&data, x, y, z));
    EXPECT_EQ(x, 1.0);
    EXPECT_EQ(y, -2.5);
    EXPECT_EQ(z, 3.0);
    EXPECT_FALSE(KzXmlDataUtil::getVector(nullptr, x, y, z));
}

TEST(KzXmlDataUtil, ReadsValuesAndKeepsTheDefaultWithoutThem) {
    KzXmlData data("A", nullptr);
    data.setAttribute("D", 1.25);
    data.setAttribute("ON", true, true);
    data.setAttribute("OFF", false, true);
    data.makeChild("C")->setData("12.75");
    double number = 9;
    bool flag = false;
    EXPECT_TRUE(KzXmlDataUtil::readValToAttribute(&data, "D", number));
    EXPECT_EQ(number, 1.25);
    EXPECT_FALSE(KzXmlDataUtil::readValToAttribute(&data, "NONE", number));
    EXPECT_EQ(number, 1.25);
    KzXmlDataUtil::readValToAttribute(&data, "ON", flag);
    EXPECT_TRUE(flag);
    KzXmlDataUtil::readValToAttribute(&data, "NONE", flag);
    EXPECT_TRUE(flag);
    KzXmlDataUtil::readValToAttribute(&data, "OFF", flag);
    EXPECT_FALSE(flag);
    EXPECT_TRUE(KzXmlDataUtil::readValToChild(&data, "C", number));
    EXPECT_EQ(number, 12.75);
    EXPECT_FALSE(KzXmlDataUtil::readValToChild(&data, "NONE", number));
    EXPECT_EQ(number, 12.75);
    EXPECT_EQ(KzXmlDataUtil::getChildInt(&data, "C"), 12);
    EXPECT_EQ(KzXmlDataUtil::getChildDouble(&data, "C"), 12.75);
    EXPECT_EQ(KzXmlDataUtil::getChildInt(&data, "NONE"), 0);
    EXPECT_EQ(KzXmlDataUtil::getChildDouble(nullptr, "C"), 0.0);
    EXPECT_EQ(KzXmlDataUtil::getAttributeString(&data, "D"), "1.25");
    EXPECT_EQ(KzXmlDataUtil::getAttributeString(&data, "NONE"), "");
    EXPECT_EQ(KzXmlDataUtil::getAttributeString(nullptr, "D"), "");
}

TEST(KzXmlDataUtil, ReadsIntegersFlagsAndTexts) {
    KzXmlData data("A", nullptr);
    data.setAttribute("N", " -7.9 ");
    data.setAttribute("YES", 2);
    data.setAttribute("WORD", "true");
    int number = 5;
    bool flag = false;
    std::string text = "default";
    EXPECT_TRUE(KzXmlDataUtil::readValToAttribute(&data, "N", number));
    EXPECT_EQ(number, -7);
    EXPECT_FALSE(KzXmlDataUtil::readValToAttribute(&data, "NONE", number));
    EXPECT_EQ(number, -7);
    EXPECT_TRUE(KzXmlDataUtil::readValToAttribute(&data, "YES", flag));
    EXPECT_TRUE(flag);
    EXPECT_TRUE(KzXmlDataUtil::readValToAttribute(&data, "WORD", flag));
    EXPECT_FALSE(flag);  // a flag is a number
    EXPECT_FALSE(KzXmlDataUtil::readValToAttribute(&data, "NONE", text));
    EXPECT_EQ(text, "default");
    EXPECT_TRUE(KzXmlDataUtil::readValToAttribute(&data, "N", text));
    EXPECT_EQ(text, " -7.9 ");
    double real = 3.0;
    EXPECT_FALSE(KzXmlDataUtil::readValToAttribute(nullptr, "N", real));
    EXPECT_FALSE(KzXmlDataUtil::readValToAttribute(nullptr, "N", flag));
    EXPECT_FALSE(KzXmlDataUtil::readValToAttribute(nullptr, "N", number));
    EXPECT_FALSE(KzXmlDataUtil::readValToAttribute(nullptr, "N", text));
    EXPECT_FALSE(KzXmlDataUtil::readValToChild(nullptr, "N", real));
    EXPECT_EQ(KzXmlDataUtil::getChildInt(nullptr, "N"), 0);
    EXPECT_EQ(real, 3.0);
}

TEST(KzXmlDataUtil, KeyedOpenFindsOrMakesAChildWithExactlyThatAttribute) {
    KzXmlData root("R", nullptr);
    const std::uint64_t key = 18446744073709551615U;
    KzXmlData *made = KzXmlDataUtil::openToAttribute(&root, "E", "ID", key);
    EXPECT_EQ(made->getAttributes().size(), 1U);
    EXPECT_EQ(made->findAttribute("ID")->getData(), "18446744073709551615");
    EXPECT_EQ(KzXmlDataUtil::openToAttribute(&root, "E", "ID", key), made);
    EXPECT_NE(KzXmlDataUtil::openToAttribute(&root, "F", "ID", key), made);
    EXPECT_NE(KzXmlDataUtil::openToAttribute(&root, "E", "ID", std::uint64_t{5}), made);
    EXPECT_EQ(root.getChildren().size(), 3U);
    EXPECT_EQ(KzXmlDataUtil::openToAttribute(nullptr, "E", "ID", key), nullptr);
    EXPECT_EQ(KzXmlDataUtil::openToAttribute(&root, "E", "ID", 5), root.getChildren()[2]);
    EXPECT_EQ(KzXmlDataUtil::openToAttribute(&root, "E", "ID", 5.0009), root.getChildren()[2]);
    EXPECT_EQ(KzXmlDataUtil::openToAttribute(&root, "E", "ID", "5"), root.getChildren()[2]);
    EXPECT_EQ(KzXmlDataUtil::openToAttribute(&root, "E", "ID", 5.0015)->findAttribute("ID")->getData(),
              "5.0015");
}

TEST(KzXmlData, ADoubleKeyMatchesStrictlyWithinItsTolerance) {
    for (const int fillers : {0, 40}) {  // walked, and answered from the index
        SCOPED_TRACE(fillers);
        KzXmlData root("R", nullptr);
        for (int i = 0; i < fillers; ++i) root.makeChild("E")->setAttribute("POS", 100.0 + i);
        KzXmlData *child = root.makeChild("E");
        child->setAttribute("POS", 1.0);
        EXPECT_EQ(root.findChildToAttribute("E", "POS", 1.0, 0.5), child);
        EXPECT_EQ(root.findChildToAttribute("E", "POS", 1.4999, 0.5), child);
        EXPECT_EQ(root.findChildToAttribute("E", "POS", 1.5, 0.5), nullptr);
        EXPECT_EQ(root.findChildToAttribute("E", "POS", 0.5, 0.5), nullptr);
        EXPECT_EQ(root.findChildToAttribute("E", "POS", 1.0, 0.0), nullptr);
        EXPECT_EQ(root.findChildToAttribute("E", "POS", std::nan(""), 0.5), nullptr);
        EXPECT_EQ(root.findChildToAttribute("E", "POS", std::numeric_limits<double>::infinity(), 0.5),
                  nullptr);
        EXPECT_EQ(root.findChildToAttribute("F", "POS", 1.0, 0.5), nullptr);
    }
}

namespace {

template <class Test>
KzXmlData *firstOf(const KzXmlData &root, const std::string &name, const std::string &key, Test test) {
    for (auto *child : root.getChildren()) {
        if (child->getName() != name) continue;
        const auto *attribute = child->findAttribute(key);
        if (attribute && test(*attribute)) return child;
    }
    return nullptr;
}

const char *const names[] = {"A", "B"};
const char *const keys[] = {"N", "M"};
const char *const values[] = {"1", " 1", "+01", "2", "-2", "1.0004", "x", "", "nan", "inf", "0", "-0", "3"};

void checkAllLookups(const KzXmlData &root, std::mt19937 &random) {
    const std::string name = names[random() % 2];
    const std::string key = keys[random() % 2];
    const std::string text = values[random() % std::size(values)];
    const int number = static_cast<int>(random() % 6) - 2;
    const double real = number + static_cast<double>(random() % 3) * 0.0004;
    using Attribute = KzXmlAttributeData;
    EXPECT_EQ(root.findChildToAttribute(name, key, text),
              firstOf(root, name, key, [&](const Attribute &a) { return a.getData() == text; }));
    EXPECT_EQ(root.findChildToAttribute(name, key, number),
              firstOf(root, name, key, [&](const Attribute &a) { return a.checkValue(number); }));
    EXPECT_EQ(root.findChildToAttribute(name, key, std::uint64_t{2}),
              firstOf(root, name, key, [&](const Attribute &a) { return a.checkValue(2); }));
    EXPECT_EQ(root.findChildToAttribute(name, key, real, 0.001),
              firstOf(root, name, key,
                      [&](const Attribute &a) { return std::fabs(a.getDouble() - real) < 0.001; }));
}

}  // namespace

TEST(KzXmlData, TheIndexAnswersAsAPlainWalkDoesWhateverHappensToTheChildren) {
    for (unsigned seed = 1; seed <= 40; ++seed) {
        SCOPED_TRACE(seed);
        std::mt19937 random(seed);
        KzXmlTree tree("R");
        KzXmlData &root = *tree.getRoot();
        for (int step = 0; step < 600 && !testing::Test::HasFailure(); ++step) {
            const auto &children = root.getChildren();
            const auto action = random() % 100;
            if (action < 30 || children.size() < 18) {
                auto *child = action % 2 ? root.makeChild(names[random() % 2])
                                         : new KzXmlData(names[random() % 2], &root);
                if (random() % 2)
                    child->setAttribute(keys[random() % 2], values[random() % std::size(values)]);
                if (action % 2 == 0) root.addChild(child);
                if (random() % 2)
                    child->setAttribute(keys[random() % 2], values[random() % std::size(values)]);
            } else if (action < 70) {
                children[random() % children.size()]->setAttribute(keys[random() % 2],
                                                                   values[random() % std::size(values)]);
            } else if (action < 85) {
                root.remove(names[random() % 2]);
            } else if (action < 88) {
                children[random() % children.size()]->flush();
            } else if (action == 99 && random() % 8 == 0) {
                root.flush();
            }
            checkAllLookups(root, random);
        }
    }
}
