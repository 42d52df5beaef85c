#ifndef VARNEL_TESTS_SUPPORT_SURVIVORS_H
#define VARNEL_TESTS_SUPPORT_SURVIVORS_H

#include <string>

class VarnelManager;

namespace varnel::test {

/// What a document brings back of a project, one line for each object: equal before writing and after
/// reading. What is meant to change on the way stands in the form that comes back. Numbers that a turned
/// frame rounds are given to nine decimals.
std::string survivors(const VarnelManager &manager);

/// The load cases, which only the document of an unchanged model keeps, one line each.
std::string loadcasesOf(const VarnelManager &manager);

}  // namespace varnel::test

#endif
