#ifndef VARNEL_APPS_VARNEL_LOSSES_H
#define VARNEL_APPS_VARNEL_LOSSES_H

#include <string>
#include <vector>

class KzXmlData;

namespace varnel::tool {

/// Places (XPath) of the elements and attributes of a document that the rewritten one has no more, in
/// document order; of a lost element only itself. What the rewritten one holds in a newer form is not lost.
/// Names are compared, values are not.
std::vector<std::string> losses(const KzXmlData &asRead, const KzXmlData &rewritten);

}  // namespace varnel::tool

#endif
