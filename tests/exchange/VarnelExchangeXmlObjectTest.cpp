#include "varnel/exchange/VarnelExchangeXmlObject.h"

#include <gtest/gtest.h>

#include <type_traits>

#include "tests/support/Document.h"
#include "tests/support/VirtualSlot.h"

namespace {

using varnel::virtualSlot;

class Part : public VarnelExchangeXmlObject {
  public:
    using VarnelExchangeXmlObject::VarnelExchangeXmlObject;
    void create(KzXmlData *, Varnel *) override {}
    void update(Varnel *) override {}
};

TEST(VarnelExchangeXmlObject, VirtualOperationsStandInTheirOrder) {
    EXPECT_EQ(virtualSlot(&VarnelExchangeXmlObject::create), 0);
    EXPECT_EQ(virtualSlot(&VarnelExchangeXmlObject::update), 1);
    EXPECT_FALSE(std::has_virtual_destructor<VarnelExchangeXmlObject>::value);
}

TEST(VarnelExchangeXmlObject, WritesThroughItsExchange) {
    VarnelExchangeXml exchange;
    Part part(&exchange);
    part.open("A");
    part.setAttribute("I", 1);
    part.setAttribute("D", 0.5);
    part.setAttribute("T", "text");
    part.openToAttribute("B", "K", 1);
    part.close();
    part.openToAttribute("B", "K", 2.0);
    part.close();
    part.openToAttribute("B", "K", "three");
    part.close();
    part.openToAttribute("B", "K", 1);
    part.setAttribute("AGAIN", 1);
    part.close();
    part.close();
    EXPECT_EQ(textOf(exchange.getTree()->getRoot()),
              "<VARNEL><A I=\"1\" D=\"0.5\" T=\"text\"><B K=\"1\" AGAIN=\"1\"></B><B K=\"2\"></B>"
              "<B K=\"three\"></B></A></VARNEL>");
    EXPECT_EQ(exchange.getTree()->getCursor(), exchange.getTree()->getRoot());
}

TEST(VarnelExchangeXmlObject, CopiesShareTheExchange) {
    VarnelExchangeXml first, second;
    const Part part(&first);
    Part copy(part);
    EXPECT_EQ(copy.getExXml(), &first);
    copy = Part(&second);
    EXPECT_EQ(copy.getExXml(), &second);
    EXPECT_EQ(part.getExXml(), &first);
}

TEST(VarnelExchangeXmlObject, CallsOfTheExchangeAreThoseOfTheDerivedOne) {
    class Recording : public VarnelExchangeXml {
      public:
        void open(const std::string &name) override {
            calls += name;
            VarnelExchangeXml::open(name);
        }
        void close() override {
            calls += ".";
            VarnelExchangeXml::close();
        }
        std::string calls;
    } exchange;
    Part part(&exchange);
    part.open("A");
    part.close();
    EXPECT_EQ(exchange.calls, "A.");
}

}  // namespace
