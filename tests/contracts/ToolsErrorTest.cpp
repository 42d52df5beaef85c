#include "varnel/contracts/Tools/Error.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <type_traits>

namespace {

static_assert(std::has_virtual_destructor<Tools::Error>::value, "hosts derive from it");
static_assert(std::is_base_of<std::exception, Tools::Error>::value, "caught with all others");
static_assert(std::is_nothrow_copy_constructible<Tools::Error>::value, "copied while it is thrown");
static_assert(std::is_nothrow_copy_assignable<Tools::Error>::value, "copied while it is thrown");

TEST(ToolsError, KeepsItsMessageBeyondTheTextItWasMadeFrom) {
    std::string text = "a message that does not fit into a short string";
    const Tools::Error error(text.c_str());
    text.assign(text.size(), 'x');
    EXPECT_STREQ(error.what(), "a message that does not fit into a short string");
}

TEST(ToolsError, ANullMessageIsAnEmptyOne) {
    EXPECT_STREQ(Tools::Error(static_cast<const char *>(nullptr)).what(), "");
}

TEST(ToolsError, CopiesOutliveTheirSource) {
    auto source = std::make_unique<Tools::Error>("first");
    const Tools::Error copy(*source);
    Tools::Error assigned("second");
    assigned = *source;
    source.reset();
    EXPECT_STREQ(copy.what(), "first");
    EXPECT_STREQ(assigned.what(), "first");
}

TEST(ToolsError, IsThrownByValueAndCaughtAsAnyException) {
    try {
        throw Tools::Error("beam not found");
    } catch (const std::exception &error) {
        EXPECT_STREQ(error.what(), "beam not found");
        EXPECT_NE(dynamic_cast<const Tools::Error *>(&error), nullptr);
    }
}

}  // namespace
