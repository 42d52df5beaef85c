#include "varnel/contracts/XmlChildIndex.h"

#include <cmath>

#include "varnel/contracts/KzXmlData.h"

namespace varnel {

namespace {

template <class Values, class Key>
auto *firstIn(Values &values, const Key &key) {
    const auto found = values.find(key);
    return found == values.end() ? nullptr : found->second.first;
}

template <class Values, class Key>
void removeFrom(Values &values, const Key &key, KzXmlData &child) {
    const auto found = values.find(key);
    if (found != values.end() && !found->second.remove(child)) values.erase(found);
}

}  // namespace

void XmlChildIndex::Bearers::add(KzXmlData &child) {
    if (!first) {
        first = &child;
        return;
    }
    if (!others) others = std::make_unique<std::map<std::uint32_t, KzXmlData *>>();
    if (child.order_ < first->order_) {
        others->emplace(first->order_, first);
        first = &child;
    } else {
        others->emplace_hint(others->end(), child.order_, &child);
    }
}

bool XmlChildIndex::Bearers::remove(KzXmlData &child) {
    if (first != &child) {
        if (others) others->erase(child.order_);
        return true;
    }
    if (!others || others->empty()) return false;
    first = others->begin()->second;
    others->erase(others->begin());
    return true;
}

void XmlChildIndex::Table::add(KzXmlData &child, std::string_view value) {
    if (kind == Kind::text) {
        texts[std::string(value)].add(child);
    } else if (kind == Kind::integer) {
        if (const auto whole = readWholeInteger(value))
            integers(whole->negative)[whole->magnitude].add(child);
    } else if (const double number = readDouble(value); !std::isnan(number)) {
        reals[number].add(child);
    }
}

void XmlChildIndex::Table::remove(KzXmlData &child, std::string_view value) {
    if (kind == Kind::text) {
        removeFrom(texts, std::string(value), child);
    } else if (kind == Kind::integer) {
        if (const auto whole = readWholeInteger(value))
            removeFrom(integers(whole->negative), whole->magnitude, child);
    } else if (const double number = readDouble(value); !std::isnan(number)) {
        removeFrom(reals, number, child);
    }
}

KzXmlData *XmlChildIndex::find(std::string_view name, std::string_view key, std::string_view text) {
    return firstIn(giveTable(name, key, Kind::text).texts, std::string(text));
}

KzXmlData *XmlChildIndex::find(std::string_view name, std::string_view key, WholeInteger value) {
    return firstIn(giveTable(name, key, Kind::integer).integers(value.negative), value.magnitude);
}

KzXmlData *XmlChildIndex::find(std::string_view name, std::string_view key, double value, double tolerance) {
    if (!(tolerance > 0.0) || !std::isfinite(value)) return nullptr;  // nothing is nearer than that
    auto &table = giveTable(name, key, Kind::real);
    const double slack = 1e-9 * (std::fabs(value) + tolerance);  // the exact test follows
    const auto last = table.reals.upper_bound(value + tolerance + slack);
    KzXmlData *nearest = nullptr;
    for (auto at = table.reals.lower_bound(value - tolerance - slack); at != last; ++at) {
        KzXmlData *child = at->second.first;
        if (std::fabs(at->first - value) < tolerance && (!nearest || child->order_ < nearest->order_))
            nearest = child;
    }
    return nearest;
}

/// The tables only quicken what a walk finds as well: without memory they go.
template <class Change>
void XmlChildIndex::update(Change change) noexcept {
    try {
        for (auto &table : tables_) change(table);
    } catch (...) {
        tables_.clear();
    }
}

void XmlChildIndex::add(KzXmlData &child) {
    update([&](Table &table) {
        const auto *attribute = child.getName() == table.name ? child.findAttribute(table.key) : nullptr;
        if (attribute) table.add(child, attribute->getData());
    });
}

void XmlChildIndex::remove(KzXmlData &child) {
    update([&](Table &table) {
        const auto *attribute = child.getName() == table.name ? child.findAttribute(table.key) : nullptr;
        if (attribute) table.remove(child, attribute->getData());
    });
}

void XmlChildIndex::addValue(KzXmlData &child, const KzXmlAttributeData &attribute) {
    update([&](Table &table) {
        if (table.key == attribute.getKey() && table.name == child.getName())
            table.add(child, attribute.getData());
    });
}

void XmlChildIndex::removeValue(KzXmlData &child, const KzXmlAttributeData &attribute) {
    update([&](Table &table) {
        if (table.key == attribute.getKey() && table.name == child.getName())
            table.remove(child, attribute.getData());
    });
}

XmlChildIndex::Table &XmlChildIndex::giveTable(std::string_view name, std::string_view key, Kind kind) {
    for (auto &table : tables_)
        if (table.kind == kind && table.key == key && table.name == name) return table;
    Table table{std::string(name), std::string(key), kind};
    for (auto *child : children_) {
        if (child->getName() != name) continue;
        if (const auto *attribute = child->findAttribute(key)) table.add(*child, attribute->getData());
    }
    tables_.push_back(std::move(table));
    return tables_.back();
}

}  // namespace varnel
