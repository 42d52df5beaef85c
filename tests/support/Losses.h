#ifndef VARNEL_TESTS_SUPPORT_LOSSES_H
#define VARNEL_TESTS_SUPPORT_LOSSES_H

#include <set>
#include <string>

class VarnelManager;

namespace varnel::test {

/// What a document is meant not to keep.
struct Losses {
    std::set<std::string> asked;  // names of what was looked for
    std::set<std::string> found;  // those of them that some project had; none if it was just read

    /// Looks through a project.
    void add(const VarnelManager &manager);
};

}  // namespace varnel::test

#endif
