#ifndef VARNEL_CONTRACTS_KZREINFLINE_H
#define VARNEL_CONTRACTS_KZREINFLINE_H

#include <cstdint>
#include <string>

#include "varnel/contracts/Export.h"

class KzMaterialReinforcement;
class KzReinfLineList;
class SDBSectionLine;

/// A line of reinforcement for which beams are designed: number, name, cross-section and steel. The number is
/// fixed.
class VARNEL_EXPORT KzReinfLine {
  public:
    KzReinfLine(int number, const std::string &name) : number_(number), name_(name) {}
    KzReinfLine(const KzReinfLine &) = delete;
    KzReinfLine &operator=(const KzReinfLine &) = delete;
    virtual ~KzReinfLine() = default;

    int getNumber() const { return number_; }
    const std::string &getName() const { return name_; }
    void setName(const std::string &name) { name_ = name; }
    /// Shared; null without one. The section's manager keeps it as long as a listed line refers to it.
    SDBSectionLine *getSection() const { return section_; }
    void setSection(SDBSectionLine *section) { section_ = section; }
    /// Shared; null without one. The document does not hold it.
    KzMaterialReinforcement *getReinforcement() const { return reinforcement_; }
    void setReinforcement(KzMaterialReinforcement *reinforcement) { reinforcement_ = reinforcement; }

  private:
    friend class KzReinfLineList;

    int number_;
    std::string name_;
    SDBSectionLine *section_ = nullptr;
    KzMaterialReinforcement *reinforcement_ = nullptr;
    KzReinfLineList *list_ = nullptr;  // the one that owns this line
    std::uint64_t sequence_ = 0;       // rises along that list
};

#endif
