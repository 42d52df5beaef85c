#ifndef VARNEL_CONTRACTS_SDBSECTIONDATABASE_H
#define VARNEL_CONTRACTS_SDBSECTIONDATABASE_H

#include "varnel/contracts/SDBSectionManager.h"

/// The predefined cross-sections of the process, shared by all projects: rectangles "R 24/40" and circles
/// "D 30", dimensions in cm.
class VARNEL_EXPORT SDBSectionDatabase : public SDBSectionManager {
  public:
    static SDBSectionDatabase *get();

  private:
    SDBSectionDatabase();
};

#endif
