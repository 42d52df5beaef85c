#include <gtest/gtest.h>

#include <random>
#include <sstream>

#include "tests/support/XmlText.h"
#include "varnel/contracts/Tools/Error.h"

using testsupport::build;
using testsupport::textOf;

namespace {

const std::string head = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n";

std::string writtenText(const std::string &data) {
    KzXmlTree tree("R");
    tree.getRoot()->setData(data);
    const std::string text = textOf(tree);
    return text.substr(head.size() + 3, text.size() - head.size() - 8);
}

std::string writtenAttribute(const std::string &data) {
    KzXmlTree tree("R");
    tree.getRoot()->setAttribute("a", data);
    const std::string text = textOf(tree);
    return text.substr(head.size() + 6, text.size() - head.size() - 10);
}

/// Names, keys and texts from a small stock of awkward ones.
std::string awkward(std::mt19937 &random) {
    static const char *const pieces[] = {"a",
                                         " ",
                                         "\n",
                                         "\t",
                                         "\r",
                                         "<",
                                         ">",
                                         "&",
                                         "\"",
                                         "'",
                                         "]]>",
                                         "\x01",
                                         "\xC3\xA4",
                                         "\xE4",
                                         "\xEF\xBF\xBF",
                                         "\xEF\xBF\xBD",
                                         "--",
                                         "long text that needs memory of its own"};
    std::string text;
    for (auto count = random() % 4; count > 0; --count) text += pieces[random() % std::size(pieces)];
    return text;
}

void grow(KzXmlData &element, std::mt19937 &random, int depth) {
    static const char *const names[] = {"A", "B", "Caf\xC3\xA9", "long-name.with_all:signs1"};
    for (auto count = random() % 4; count > 0; --count)
        element.setAttribute(names[random() % 4], awkward(random));
    if (random() % 2) element.setData(awkward(random));
    for (auto count = depth ? random() % 5 : 0; count > 0; --count)
        grow(*element.makeChild(names[random() % 4]), random, depth - 1);
}

}  // namespace

TEST(KzXmlWriting, LaysOutElementsWithTwoBlanksALevel) {
    KzXmlTree tree("R");
    tree.open("A");
    tree.setAttribute("K", 1.0);
    tree.getCursor()->setAttribute("L", "x", true);
    tree.open("X");
    tree.getCursor()->setData(0.1);
    tree.close();
    tree.open("Y");
    tree.close();
    tree.close();
    tree.open("B");
    EXPECT_EQ(textOf(tree),
              head + "<R>\n  <A K=\"1\" L=\"x\">\n    <X>0.1</X>\n    <Y/>\n  </A>\n  <B/>\n</R>\n");
    EXPECT_EQ(textOf(tree, false), head + "<R><A K=\"1\" L=\"x\"><X>0.1</X><Y/></A><B/></R>\n");
}

TEST(KzXmlWriting, MixedContentStandsInARow) {
    KzXmlTree tree("R");
    tree.open("A");
    tree.getCursor()->setData(" text ");
    tree.open("B");
    tree.open("C");
    tree.close();
    tree.close();
    tree.open("D");
    EXPECT_EQ(textOf(tree), head + "<R>\n  <A> text <B><C/></B><D/></A>\n</R>\n");
}

TEST(KzXmlWriting, BlankTextBesideChildrenIsNotWritten) {
    KzXmlTree tree("R");
    tree.getRoot()->setData(" \n ");
    tree.open("A");
    EXPECT_EQ(textOf(tree), head + "<R>\n  <A/>\n</R>\n");
    EXPECT_EQ(writtenText(" \n "), " \n ");
}

TEST(KzXmlWriting, EscapesWhatReadingWouldTakeForSomethingElse) {
    EXPECT_EQ(writtenText("a<b>c&d\"e'f\tg\nh\ri"), "a&lt;b&gt;c&amp;d\"e'f\tg\nh&#13;i");
    EXPECT_EQ(writtenAttribute("a<b>c&d\"e'f\tg\nh\ri"), "a&lt;b&gt;c&amp;d&quot;e'f&#9;g&#10;h&#13;i");
}

TEST(KzXmlWriting, ForbiddenCharactersBecomeTheReplacementCharacter) {
    const std::string replacement = "\xEF\xBF\xBD";
    EXPECT_EQ(writtenText(std::string("a\0b\x1F", 4)), "a" + replacement + "b" + replacement);
    EXPECT_EQ(writtenAttribute("\x01\xEF\xBF\xBE\xEF\xBF\xBF"), replacement + replacement + replacement);
    EXPECT_EQ(writtenText("\xEF\xBF\xBD\x7F\xC2\x80"), "\xEF\xBF\xBD\x7F\xC2\x80");
}

TEST(KzXmlWriting, BytesThatAreNotUtf8AreWrittenAsWindows1252) {
    EXPECT_EQ(writtenText("\xE4\x80"), "\xC3\xA4\xE2\x82\xAC");
    EXPECT_EQ(writtenAttribute("\xC3\xA4\xC3"), "\xC3\xA4\xC3\x83");
}

TEST(KzXmlWriting, NamesBecomeSound) {
    KzXmlTree tree("");
    tree.getRoot()->setAttribute("1 a<", "v", true);
    tree.getRoot()->makeChild("\xE4");
    EXPECT_EQ(textOf(tree), head + "<_ _1_a_=\"v\">\n  <\xC3\xA4/>\n</_>\n");
}

TEST(KzXmlWriting, AFailingStreamShowsInItsState) {
    KzXmlTree tree("R");
    for (int i = 0; i < 50000; ++i) tree.getRoot()->makeChild("A");
    struct Full : std::streambuf {
    } full;
    std::ostream stream(&full);
    tree.putToStream(stream, true);
    EXPECT_FALSE(stream.good());
}

TEST(KzXmlWriting, TextsLongerThanItsBufferAreWritten) {
    const std::string much(300000, 'x');
    EXPECT_EQ(writtenText(much + "&" + much), much + "&amp;" + much);
}

TEST(KzXmlWriting, RandomTreesAreReadBackAndWrittenTheSame) {
    for (unsigned seed = 1; seed <= 300; ++seed) {
        SCOPED_TRACE(seed);
        std::mt19937 random(seed);
        KzXmlTree tree("R");
        grow(*tree.getRoot(), random, 4);
        for (const bool indent : {true, false}) {
            const std::string first = textOf(tree, indent);
            KzXmlTree again("OTHER");
            ASSERT_TRUE(build(again, first));
            ASSERT_EQ(textOf(again, indent), first);
        }
    }
}

TEST(KzXmlWriting, ATreeAMillionDeepIsWrittenSearchedAndFreed) {
    constexpr int depth = 1000000;
    KzXmlTree tree("R");
    for (int i = 0; i < depth; ++i) tree.open("A");
    KzXmlData *deepest = tree.getCursor();
    EXPECT_EQ(tree.findRoot("NONE", true), nullptr);
    deepest->makeChild("END");
    EXPECT_EQ(tree.findRoot("END", true)->getParent(), deepest);
    std::ostringstream stream;
    tree.putToStream(stream, false);
    EXPECT_EQ(stream.str().size(), head.size() + 7 * std::size_t{depth} + 4 + 6 + 4);
    KzXmlTree heap("R");
    KzXmlData *element = heap.getRoot();
    for (int i = 0; i < depth; ++i) {
        auto *child = new KzXmlData("A", element);
        element->addChild(child);
        element = child;
    }
    heap.flushRoot();
    EXPECT_TRUE(heap.getRoot()->getChildren().empty());
}

TEST(KzXmlWriting, NamesKeysAndTextsLongerThanAnyBufferAreWhole) {
    const std::string name(300000, 'n'), key(200000, 'k'), value(500000, 'v');
    KzXmlTree tree(name);
    tree.getRoot()->setAttribute(key, value);
    tree.getRoot()->setData(value);
    std::ostringstream stream;
    tree.putToStream(stream, false);
    EXPECT_TRUE(stream.str() ==
                head + "<" + name + " " + key + "=\"" + value + "\">" + value + "</" + name + ">\n");
}

TEST(KzXmlWriting, IndentationStopsGrowingWhereDocumentsCannotBeReadAnyMore) {
    struct Counting : std::streambuf {
        std::size_t count = 0;
        std::streamsize xsputn(const char *, std::streamsize size) override {
            count += static_cast<std::size_t>(size);
            return size;
        }
    } counting;
    constexpr std::size_t depth = 100000;
    KzXmlTree tree("R");
    for (std::size_t i = 0; i < depth; ++i) tree.open("A");
    std::ostream stream(&counting);
    tree.putToStream(stream, true);
    EXPECT_LT(counting.count, depth * 2 * 2010);
    EXPECT_GT(counting.count, (depth - 1000) * 2 * 2000);
}
