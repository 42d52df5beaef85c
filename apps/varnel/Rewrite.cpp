#include <iostream>

#include "apps/varnel/Commands.h"
#include "apps/varnel/Document.h"
#include "apps/varnel/Findings.h"

namespace varnel::tool {

int rewrite(const std::string &path, const std::string &target, bool verbose) {
    Document document(path);
    document.build();
    std::vector<std::string> lost = missingMembers(document);
    document.bringUpToDate();
    for (std::string &loss : lostAtSaving(document)) lost.push_back(std::move(loss));
    document.save(target.empty() ? path : target);
    if (verbose)
        for (const std::string &loss : lost) std::cout << oneLine(loss) << '\n';
    return lost.empty() ? Clean : Findings;
}

}  // namespace varnel::tool
