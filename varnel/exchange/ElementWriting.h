#ifndef VARNEL_EXCHANGE_ELEMENTWRITING_H
#define VARNEL_EXCHANGE_ELEMENTWRITING_H

#include <string>

#include "varnel/exchange/VarnelExchange.h"

namespace varnel {

/// Writes a list anew: empties its element and calls `write` for each object in an element of its own, which
/// bears the object's number. Null entries are skipped.
template <class Objects, class Writer>
void rebuildList(VarnelExchange &exchange, const std::string &list, const std::string &item,
                 const Objects &objects, Writer write) {
    exchange.open(list);
    exchange.flush();
    for (auto *object : objects) {
        if (!object) continue;
        exchange.openToAttribute(item, "NUMBER", object->getNumber());
        write(object);
        exchange.close();
    }
    exchange.close();
}

}  // namespace varnel

#endif
