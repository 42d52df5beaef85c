#ifndef VARNEL_TESTS_SUPPORT_DOCUMENTDIFFERENCE_H
#define VARNEL_TESTS_SUPPORT_DOCUMENTDIFFERENCE_H

#include <string>

namespace varnel::test {

/// Empty, or where two documents differ by more than the last digits of numbers that a frame or a change of
/// units rounds.
std::string difference(const std::string &a, const std::string &b);

/// Empty, or the first lines that differ.
std::string firstDifference(const std::string &a, const std::string &b);

}  // namespace varnel::test

#endif
