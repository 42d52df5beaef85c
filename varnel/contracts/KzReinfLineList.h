#ifndef VARNEL_CONTRACTS_KZREINFLINELIST_H
#define VARNEL_CONTRACTS_KZREINFLINELIST_H

#include <cstdint>
#include <memory>
#include <vector>

#include "varnel/contracts/Export.h"
#include "varnel/contracts/FirstByKey.h"
#include "varnel/contracts/KzMaterialUser.h"
#include "varnel/contracts/Users.h"

class KzReinfLine;
class KzReinfLineUser;
class KzXmlData;
class KzXmlTree;
class SDBSection;
class SDBSectionManager;

/// The lines of reinforcement of a project: owned, found by number without a walk, protected by their users.
/// It protects the sections of its lines itself and, registered with a manager of materials, their steel.
/// Not copyable.
class VARNEL_EXPORT KzReinfLineList : public KzMaterialUser {
  public:
    /// The sections are shared, may be null and may die first.
    explicit KzReinfLineList(SDBSectionManager *sections);
    KzReinfLineList(const KzReinfLineList &) = delete;
    KzReinfLineList &operator=(const KzReinfLineList &) = delete;
    /// Deletes the lines without asking a user.
    ~KzReinfLineList() override;

    /// Whether the steel of a line is that material.
    bool checkUsed(const KzMaterial *material) override;

    /// The first line of that number, or null.
    KzReinfLine *findBeamReinf(int number) const;
    const std::vector<KzReinfLine *> &getLines() const { return lines_; }
    /// Takes a line over. Null and one that is owned by a list already are ignored.
    void add(KzReinfLine *line);
    /// Deletes the line unless a user needs it; true if it is gone. False for one of another list.
    bool remove(KzReinfLine *line);
    /// Finds or makes one line for each REINFLINE with a NUMBER below the element. Sections are looked for in
    /// the project, then among the predefined ones; an unknown name gives none.
    void importXml(KzXmlData *element);
    /// Brings one REINFLINE for each number below the tree's cursor up to date, drops every other REINFLINE
    /// and leaves other elements alone. The cursor stays.
    void exportXml(KzXmlTree *tree);
    void addUser(KzReinfLineUser *user) { users_.add(user); }
    void removeUser(KzReinfLineUser *user) { users_.remove(user); }

  private:
    class SectionGuard;

    SDBSectionManager *sections() const;
    bool usesSection(const SDBSection *section) const;
    void importOneLine(const KzXmlData *element);

    SDBSectionManager *sections_;
    std::weak_ptr<const void> sectionsLife_;
    std::unique_ptr<SectionGuard> guard_;
    std::vector<KzReinfLine *> lines_;
    varnel::FirstByKey<int, KzReinfLine> numbers_;
    std::uint64_t lastSequence_ = 0;
    varnel::Users<KzReinfLineUser> users_;
};

#endif
