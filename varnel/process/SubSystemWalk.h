#ifndef VARNEL_PROCESS_SUBSYSTEMWALK_H
#define VARNEL_PROCESS_SUBSYSTEMWALK_H

#include <vector>

#include "varnel/model/VarnelSubSystem.h"

namespace varnel {

/// Visits a subsystem, then its children in list order, depth first, until the visitor answers true; answers
/// whether one did. Null subsystems are skipped. The stack is ours, so a deep tree costs no call stack.
template <class Visitor>
bool anySubSystem(VarnelSubSystem *start, Visitor visitor) {
    std::vector<VarnelSubSystem *> waiting{start};
    while (!waiting.empty()) {
        VarnelSubSystem *subSystem = waiting.back();
        waiting.pop_back();
        if (!subSystem) continue;
        if (visitor(*subSystem)) return true;
        const auto &children = subSystem->getChildren();
        waiting.insert(waiting.end(), children.rbegin(), children.rend());
    }
    return false;
}

/// Visits a subsystem and everything below it, as anySubSystem() does.
template <class Visitor>
void eachSubSystem(VarnelSubSystem *start, Visitor visitor) {
    anySubSystem(start, [&visitor](VarnelSubSystem &subSystem) {
        visitor(subSystem);
        return false;
    });
}

/// The same for the models of the subsystems, those without one skipped.
template <class Visitor>
bool anyModel(VarnelSubSystem *start, Visitor visitor) {
    return anySubSystem(start, [&visitor](VarnelSubSystem &subSystem) {
        Varnel *model = subSystem.getDatabase();
        return model && visitor(*model);
    });
}

template <class Visitor>
void eachModel(VarnelSubSystem *start, Visitor visitor) {
    anyModel(start, [&visitor](Varnel &model) {
        visitor(model);
        return false;
    });
}

}  // namespace varnel

#endif
