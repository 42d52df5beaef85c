#ifndef VARNEL_CONTRACTS_XMLCHILDINDEX_H
#define VARNEL_CONTRACTS_XMLCHILDINDEX_H

#include <cstdint>
#include <list>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "varnel/contracts/TextNumbers.h"

class KzXmlAttributeData;
class KzXmlData;

namespace varnel {

/// Finds children of one element by the value of an attribute: the first one in document order, as a walk
/// over them does. A table for a child name and key is made when it is first asked for; from then on the
/// element and its children tell of every change.
class XmlChildIndex {
  public:
    explicit XmlChildIndex(const std::vector<KzXmlData *> &children) : children_(children) {}

    KzXmlData *find(std::string_view name, std::string_view key, std::string_view text);
    KzXmlData *find(std::string_view name, std::string_view key, WholeInteger value);
    KzXmlData *find(std::string_view name, std::string_view key, double value, double tolerance);

    void add(KzXmlData &child);
    void remove(KzXmlData &child);
    /// To be called after an attribute got its value, and before it loses it.
    void addValue(KzXmlData &child, const KzXmlAttributeData &attribute);
    void removeValue(KzXmlData &child, const KzXmlAttributeData &attribute);

  private:
    enum class Kind { text, integer, real };

    /// The children with one value: nearly always a single one.
    struct Bearers {
        KzXmlData *first = nullptr;
        std::unique_ptr<std::map<std::uint32_t, KzXmlData *>> others;

        void add(KzXmlData &child);
        /// False when none is left.
        bool remove(KzXmlData &child);
    };

    struct Table {
        std::string name;
        std::string key;
        Kind kind;
        std::unordered_map<std::string, Bearers> texts{};
        std::unordered_map<std::uint64_t, Bearers> wholes{};
        std::unordered_map<std::uint64_t, Bearers> negatives{};  // by magnitude
        std::map<double, Bearers> reals{};

        std::unordered_map<std::uint64_t, Bearers> &integers(bool negative) {
            return negative ? negatives : wholes;
        }
        void add(KzXmlData &child, std::string_view value);
        void remove(KzXmlData &child, std::string_view value);
    };

    Table &giveTable(std::string_view name, std::string_view key, Kind kind);
    template <class Change>
    void update(Change change) noexcept;

    const std::vector<KzXmlData *> &children_;
    std::list<Table> tables_;
};

}  // namespace varnel

#endif
