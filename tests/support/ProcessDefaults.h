#ifndef VARNEL_TESTS_SUPPORT_PROCESSDEFAULTS_H
#define VARNEL_TESTS_SUPPORT_PROCESSDEFAULTS_H

#include "tests/support/CompleteProject.h"
#include "varnel/contracts/KzStandard.h"

/// What a process has once, the templates of new objects and the code of practice, is at its defaults when a
/// test begins and when it ends. Declared before the project, so that it is reset last.
class ProcessDefaults {
  public:
    ProcessDefaults() { reset(); }
    ProcessDefaults(const ProcessDefaults &) = delete;
    ProcessDefaults &operator=(const ProcessDefaults &) = delete;
    ~ProcessDefaults() { reset(); }

  private:
    static void reset() {
        KzStandard::get()->setMode(0);
        resetDefaults();
    }
};

#endif
