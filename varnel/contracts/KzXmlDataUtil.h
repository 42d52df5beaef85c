#ifndef VARNEL_CONTRACTS_KZXMLDATAUTIL_H
#define VARNEL_CONTRACTS_KZXMLDATAUTIL_H

#include <cstdint>
#include <string>
#include <string_view>

#include "varnel/contracts/Export.h"

class KzXmlData;

/// Readers of single values of an element. A null element has neither attributes nor children.
class VARNEL_EXPORT KzXmlDataUtil {
  public:
    /// Overwrites each value whose child `X`, `Y` or `Z` exists; true if one of them does.
    static bool getVector(const KzXmlData *data, double &x, double &y, double &z);
    /// Empty without that attribute.
    static std::string getAttributeString(const KzXmlData *data, std::string_view key);
    /// The text of the first child of that name as a number, 0 without one.
    static int getChildInt(const KzXmlData *data, std::string_view key);
    static double getChildDouble(const KzXmlData *data, std::string_view key);
    /// Overwrites the value if the attribute exists and answers whether it does; any integer but 0 is true.
    static bool readValToAttribute(const KzXmlData *data, std::string_view key, double &value);
    static bool readValToAttribute(const KzXmlData *data, std::string_view key, bool &value);
    static bool readValToAttribute(const KzXmlData *data, std::string_view key, int &value);
    static bool readValToAttribute(const KzXmlData *data, std::string_view key, std::string &value);
    /// Overwrites the value from the text of the child if it exists and answers whether it does.
    static bool readValToChild(const KzXmlData *data, std::string_view key, double &value);

    /// The first child `name` whose attribute `key` has the value, made and keyed if there is none. Null for
    /// null. The double form takes what is nearer than 0.001 for equal.
    static KzXmlData *openToAttribute(KzXmlData *data, std::string_view name, std::string_view key,
                                      std::uint64_t value);
    static KzXmlData *openToAttribute(KzXmlData *data, std::string_view name, std::string_view key,
                                      int value);
    static KzXmlData *openToAttribute(KzXmlData *data, std::string_view name, std::string_view key,
                                      double value);
    static KzXmlData *openToAttribute(KzXmlData *data, std::string_view name, std::string_view key,
                                      std::string_view value);
};

#endif
