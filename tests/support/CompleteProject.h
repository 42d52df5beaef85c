#ifndef VARNEL_TESTS_SUPPORT_COMPLETEPROJECT_H
#define VARNEL_TESTS_SUPPORT_COMPLETEPROJECT_H

#include <string>

#include "tests/support/RecordingServices.h"
#include "varnel/exchange/VarnelExchangeXml.h"
#include "varnel/model/Varnel.h"
#include "varnel/model/VarnelSubSystem.h"
#include "varnel/process/VarnelManager.h"

/// A small project that holds one of everything that the document can hold, results included.
class CompleteProject {
  public:
    CompleteProject();

    VarnelExchangeXml &exchange() { return static_cast<VarnelExchangeXml &>(*manager.getExchange()); }
    Varnel &model() { return *manager.getDatabase(); }
    /// The document of the unchanged project, with load cases and results.
    std::string write();

  private:
    void addResources();
    void addPlates();
    void addBeams();
    void addAreas();
    void addSupports();
    void addLoads();
    void addGroupsAndSections();
    void addSubSystems();
    void addStages();
    void addResults();

    recording::DocumentFactory factory_;

  public:
    VarnelManager manager{&factory_};
};

/// Sets every template of new objects to something else than its default while it lives; all of them are at
/// their defaults afterwards.
class ChangedDefaults {
  public:
    ChangedDefaults();
    ChangedDefaults(const ChangedDefaults &) = delete;
    ChangedDefaults &operator=(const ChangedDefaults &) = delete;
    ~ChangedDefaults();
};

/// Puts every template of new objects back to its default.
void resetDefaults();

#endif
