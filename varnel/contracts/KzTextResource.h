#ifndef VARNEL_CONTRACTS_KZTEXTRESOURCE_H
#define VARNEL_CONTRACTS_KZTEXTRESOURCE_H

#include <string>
#include <unordered_map>

#include "varnel/contracts/Export.h"

/// Texts in the user's language, by number. English until a host sets its own.
class VARNEL_EXPORT KzTextResource {
  public:
    static KzTextResource *get();
    KzTextResource(const KzTextResource &) = delete;
    KzTextResource &operator=(const KzTextResource &) = delete;

    /// The text of that number, empty if there is none.
    std::string loadString(unsigned int id) const;
    /// Sets or replaces a text.
    void setString(unsigned int id, const std::string &text) { texts_[id] = text; }

  private:
    KzTextResource();

    std::unordered_map<unsigned int, std::string> texts_;
};

#endif
