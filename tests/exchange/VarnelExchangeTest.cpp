#include "varnel/exchange/VarnelExchange.h"

#include <gtest/gtest.h>

#include <type_traits>

#include "tests/support/VirtualSlot.h"
#include "varnel/contracts/KzVector3D.h"
#include "varnel/contracts/Tools/Path.h"
#include "varnel/exchange/VarnelExchangeXmlBase.h"
#include "varnel/process/VarnelFactory.h"
#include "varnel/process/VarnelManager.h"

namespace {

using varnel::virtualSlot;

/// A document of a host's own kind, which holds nothing.
class Nothing : public VarnelExchange {
  public:
    void fileOutput(const Tools::Path &) override { setLastOutputOk(false); }
    bool fileInput(const Tools::Path &) override { return false; }
    void get(VarnelManager *) override {}
    void updateResults(VarnelManager *) override {}
    void updateSystem(VarnelManager *) override {}
    void loadProjectSettings(const std::string &) override {}
    void saveProjectSettings(const std::string &) override {}
    void updateSettings(VarnelManager *) override {}
    void open(const std::string &) override {}
    void close() override {}
    void updateVector(const KzVector3D &) override {}
    void openToAttribute(const std::string &, const std::string &, const std::string &) override {}
    void openToAttribute(const std::string &, const std::string &, double) override {}
    void openToAttribute(const std::string &, const std::string &, int) override {}
    void flush() override {}
};

template <class Value>
using KeyedOpen = void(const std::string &, const std::string &, Value);

TEST(VarnelExchange, VirtualOperationsStandInTheirOrder) {
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
    EXPECT_EQ(virtualSlot<KeyedOpen<const std::string &>>(&VarnelExchange::openToAttribute), 13);
    EXPECT_EQ(virtualSlot<KeyedOpen<double>>(&VarnelExchange::openToAttribute), 14);
    EXPECT_EQ(virtualSlot<KeyedOpen<int>>(&VarnelExchange::openToAttribute), 15);
    EXPECT_EQ(virtualSlot(&VarnelExchange::flush), 16);
}

TEST(VarnelExchange, TreeOfXmlAddsOneVirtualOperation) {
    EXPECT_EQ(virtualSlot(&VarnelExchangeXmlBase::fileOutput), 2);
    EXPECT_EQ(virtualSlot(&VarnelExchangeXmlBase::flush), 16);
    EXPECT_EQ(virtualSlot<KeyedOpen<std::uint64_t>>(&VarnelExchangeXmlBase::openToAttribute), 17);
    EXPECT_EQ(virtualSlot(&VarnelExchangeXmlBase::updateVectorToKey), -1);
    EXPECT_EQ(virtualSlot(&VarnelExchangeXmlBase::getVector), -1);
    EXPECT_EQ(virtualSlot(&VarnelExchangeXmlBase::getVectorToKey), -1);
    EXPECT_EQ(virtualSlot(&VarnelExchangeXmlBase::remove), -1);
    EXPECT_TRUE(std::is_abstract<VarnelExchangeXmlBase>::value);
}

TEST(VarnelExchange, StartsWithoutAManagerAndCopiesShareIt) {
    Nothing exchange;
    EXPECT_EQ(exchange.getManager(), nullptr);
    EXPECT_TRUE(exchange.lastOutputOk());
    VarnelFactory factory;
    VarnelManager manager(&factory);
    exchange.setManager(&manager);
    exchange.fileOutput(Tools::Path("x"));
    const Nothing copy(exchange);
    EXPECT_EQ(copy.getManager(), &manager);
    EXPECT_FALSE(copy.lastOutputOk());
    Nothing assigned;
    assigned = copy;
    EXPECT_EQ(assigned.getManager(), &manager);
}

}  // namespace
