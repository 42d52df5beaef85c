#ifndef VARNEL_APPS_VARNEL_FINDINGS_H
#define VARNEL_APPS_VARNEL_FINDINGS_H

#include <string>
#include <vector>

namespace varnel::tool {

class Document;

/// One line for each element and attribute that the document, brought up to date, does not hold any more.
std::vector<std::string> lostAtSaving(const Document &document);
/// One line for each group with members that are not there; ask before the document is brought up to date.
std::vector<std::string> missingMembers(const Document &document);

}  // namespace varnel::tool

#endif
