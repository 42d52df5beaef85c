#include "varnel/exchange/VarnelExchangeXmlBase.h"

#include <gtest/gtest.h>

#include <fstream>
#include <limits>

#include "tests/support/Document.h"
#include "tests/support/TemporaryFolder.h"
#include "varnel/contracts/Tools/Error.h"
#include "varnel/contracts/Tools/Path.h"

namespace {

class Frame : public testing::Test {
  protected:
    KzXmlData *root() { return exchange.getTree()->getRoot(); }
    std::string text() { return textOf(root()); }

    VarnelExchangeXml exchange;
};

TEST_F(Frame, StartsOnARootWithTheDocumentsName) {
    EXPECT_EQ(exchange.getTree()->getName(), "VARNEL");
    EXPECT_EQ(exchange.getTree()->getCursor(), root());
    EXPECT_EQ(exchange.getManager(), nullptr);
    EXPECT_TRUE(exchange.lastOutputOk());
}

TEST_F(Frame, OpeningANameTwiceReachesTheSameElement) {
    exchange.open("A");
    exchange.setAttribute("K", 1);
    exchange.close();
    exchange.open("A");
    exchange.setAttribute("L", 2);
    exchange.close();
    EXPECT_EQ(text(), "<VARNEL><A K=\"1\" L=\"2\"></A></VARNEL>");
}

TEST_F(Frame, ValuesHaveTheirForms) {
    exchange.setAttribute("DOUBLE", 0.1);
    exchange.setAttribute("INT", -3);
    exchange.setAttribute("YES", true);
    exchange.setAttribute("NO", false);
    exchange.setAttribute("TEXT", std::string("a"));
    exchange.setAttribute("CHARS", "b");
    exchange.setAttribute("NULL", static_cast<const char *>(nullptr));
    exchange.setAttribute("ENUM", static_cast<VarnelManager::DesignLocation>(2));
    EXPECT_EQ(text(),
              "<VARNEL DOUBLE=\"0.1\" INT=\"-3\" YES=\"1\" NO=\"0\" TEXT=\"a\" CHARS=\"b\" NULL=\"\" "
              "ENUM=\"2\"></VARNEL>");
}

TEST_F(Frame, TextOfElementsComesFromTextAndNumbers) {
    exchange.updateValueToKey("A", 1.5);
    exchange.updateValueToKey("B", std::string("b"));
    exchange.updateValueToKey("C", "c");
    EXPECT_EQ(text(), "<VARNEL><A>1.5</A><B>b</B><C>c</C></VARNEL>");
}

TEST_F(Frame, VectorsAreThreeChildren) {
    exchange.updateVector(KzVector3D(1, -2.5, 0));
    exchange.updateVectorToKey("V", KzVector3D(4, 5, 6));
    EXPECT_EQ(text(), "<VARNEL><X>1</X><Y>-2.5</Y><Z>0</Z><V><X>4</X><Y>5</Y><Z>6</Z></V></VARNEL>");
    EXPECT_TRUE(exchange.getVector(root()) == KzVector3D(1, -2.5, 0));
    KzVector3D out(9, 9, 9);
    EXPECT_TRUE(exchange.getVectorToKey(root(), "V", out));
    EXPECT_TRUE(out == KzVector3D(4, 5, 6));
}

TEST_F(Frame, MissingVectorLeavesTheValueAndMissingComponentsAreZero) {
    KzVector3D out(9, 9, 9);
    EXPECT_FALSE(exchange.getVectorToKey(root(), "V", out));
    EXPECT_FALSE(exchange.getVectorToKey(nullptr, "V", out));
    EXPECT_TRUE(out == KzVector3D(9, 9, 9));
    exchange.open("V");
    exchange.updateValueToKey("Y", 2.0);
    exchange.close();
    EXPECT_TRUE(exchange.getVectorToKey(root(), "V", out));
    EXPECT_TRUE(out == KzVector3D(0, 2, 0));
    EXPECT_TRUE(exchange.getVector(nullptr) == KzVector3D());
}

// A derived exchange that writes free-standing vectors otherwise still writes keyed ones as they are.
TEST_F(Frame, KeyedVectorsDoNotGoThroughTheVirtualOperation) {
    class Other : public VarnelExchangeXml {
        void updateVector(const KzVector3D &) override { setAttribute("OVERRIDDEN", 1); }
    } other;
    other.updateVectorToKey("V", KzVector3D(1, 2, 3));
    EXPECT_EQ(textOf(other.getTree()->getRoot()), "<VARNEL><V><X>1</X><Y>2</Y><Z>3</Z></V></VARNEL>");
}

TEST_F(Frame, KeyedOpenMakesAnElementWithItsKeyOnly) {
    exchange.openToAttribute("A", "K", 7);
    exchange.close();
    exchange.openToAttribute("B", "K", std::string("seven"));
    exchange.close();
    exchange.openToAttribute("C", "K", 0.5);
    exchange.close();
    exchange.openToAttribute("D", "K", std::numeric_limits<std::uint64_t>::max());
    exchange.close();
    EXPECT_EQ(text(),
              "<VARNEL><A K=\"7\"></A><B K=\"seven\"></B><C K=\"0.5\"></C>"
              "<D K=\"18446744073709551615\"></D></VARNEL>");
}

TEST_F(Frame, OpeningAKeyedElementTwiceKeepsTheAttributesOfBoth) {
    for (const char *key : {"L", "M"}) {
        exchange.openToAttribute("A", "K", 7);
        exchange.setAttribute(key, 1);
        exchange.close();
    }
    EXPECT_EQ(text(), "<VARNEL><A K=\"7\" L=\"1\" M=\"1\"></A></VARNEL>");
}

TEST_F(Frame, KeyedOpenTakesTheFirstMatchOfNameAndKey) {
    exchange.openToAttribute("B", "K", 7);
    exchange.close();
    exchange.openToAttribute("A", "OTHER", 7);
    exchange.close();
    exchange.openToAttribute("A", "K", 7);
    exchange.setAttribute("MARK", 1);
    exchange.close();
    root()->makeChild("A")->setAttribute("K", 7, true);
    exchange.openToAttribute("A", "K", 7);
    EXPECT_NE(exchange.getTree()->getCursor()->findAttribute("MARK"), nullptr);
}

TEST_F(Frame, DoubleKeysMatchBelowAThousandthOnly) {
    exchange.openToAttribute("A", "K", 1.0);
    exchange.close();
    exchange.openToAttribute("A", "K", 1.0009);
    exchange.close();
    EXPECT_EQ(root()->getChildren().size(), 1u);
    exchange.openToAttribute("A", "K", 1.0011);
    exchange.close();
    EXPECT_EQ(root()->getChildren().size(), 2u);
    exchange.openToAttribute("A", "K", 2.0);
    exchange.close();
    exchange.openToAttribute("A", "K", 2.0 + 0.0009765625);
    exchange.close();
    EXPECT_EQ(root()->getChildren().size(), 3u);
    exchange.openToAttribute("B", "K", 0.0);
    exchange.close();
    exchange.openToAttribute("B", "K", 0.001);
    exchange.close();
    EXPECT_EQ(root()->getChildren().size(), 5u);
}

TEST_F(Frame, NullCursorTurnsEverythingIntoNothing) {
    exchange.close();
    EXPECT_EQ(exchange.getTree()->getCursor(), nullptr);
    exchange.open("A");
    exchange.openToAttribute("A", "K", 1);
    exchange.openToAttribute("A", "K", 1.0);
    exchange.openToAttribute("A", "K", std::string("1"));
    exchange.openToAttribute("A", "K", std::uint64_t{1});
    exchange.setAttribute("K", 1);
    exchange.setAttribute("K", 1.0);
    exchange.setAttribute("K", "1");
    exchange.setDataValue(1.0);
    exchange.setDataValue("1");
    exchange.updateVector(KzVector3D());
    exchange.flush();
    exchange.remove("A");
    exchange.close();
    EXPECT_EQ(exchange.getTree()->getCursor(), nullptr);
    EXPECT_EQ(text(), "<VARNEL></VARNEL>");
}

TEST_F(Frame, FlushEmptiesAndRemoveTakesOneChild) {
    exchange.open("A");
    exchange.setAttribute("K", 1);
    exchange.open("B");
    exchange.close();
    exchange.flush();
    exchange.close();
    exchange.open("C");
    exchange.close();
    EXPECT_EQ(text(), "<VARNEL><A></A><C></C></VARNEL>");
    exchange.remove("C");
    exchange.remove("C");
    EXPECT_EQ(text(), "<VARNEL><A></A></VARNEL>");
}

TEST_F(Frame, MissingFileReadsNothingAndKeepsTheTree) {
    exchange.open("A");
    exchange.close();
    EXPECT_FALSE(exchange.fileInput(Tools::Path("/no/such/file.xml")));
    const varnel::test::TemporaryFolder folder;
    EXPECT_FALSE(exchange.fileInput(Tools::Path(folder.path())));
    EXPECT_EQ(text(), "<VARNEL><A></A></VARNEL>");
}

TEST_F(Frame, RootWithoutANameBecomesTheDocuments) {
    const varnel::test::TemporaryFolder folder;
    const std::string path = folder.file("empty.xml");
    std::ofstream(path).close();
    exchange.open("A");
    EXPECT_TRUE(exchange.fileInput(Tools::Path(path)));
    EXPECT_EQ(text(), "<VARNEL></VARNEL>");
}

TEST_F(Frame, MalformedFileThrowsWithItsPlaceAndKeepsTreeAndCursor) {
    const varnel::test::TemporaryFolder folder;
    const std::string path = folder.file("broken.xml");
    std::ofstream(path) << "<VARNEL>\n  <A></B>\n</VARNEL>\n";
    exchange.open("KEPT");
    const KzXmlData *cursor = exchange.getTree()->getCursor();
    try {
        exchange.fileInput(Tools::Path(path));
        FAIL() << "no error";
    } catch (const Tools::Error &error) {
        EXPECT_NE(std::string(error.what()).find("line 2"), std::string::npos) << error.what();
        EXPECT_NE(std::string(error.what()).find("column"), std::string::npos) << error.what();
    }
    EXPECT_EQ(exchange.getTree()->getCursor(), cursor);
    EXPECT_EQ(text(), "<VARNEL><KEPT></KEPT></VARNEL>");
}

TEST_F(Frame, FileOutputTellsWhetherTheFileIsThere) {
    const varnel::test::TemporaryFolder folder;
    exchange.fileOutput(Tools::Path(folder.file("out.xml")));
    EXPECT_TRUE(exchange.lastOutputOk());
    exchange.fileOutput(Tools::Path("/no/such/folder/out.xml"));
    EXPECT_FALSE(exchange.lastOutputOk());
    exchange.fileOutput(Tools::Path(folder.file("out.xml")));
    EXPECT_TRUE(exchange.lastOutputOk());
    VarnelExchangeXml other;
    EXPECT_TRUE(other.fileInput(Tools::Path(folder.file("out.xml"))));
    EXPECT_EQ(textOf(other.getTree()->getRoot()), text());
}

}  // namespace
