#ifndef VARNEL_CONTRACTS_STRESSMANAGER_DESIGNTYPE_H
#define VARNEL_CONTRACTS_STRESSMANAGER_DESIGNTYPE_H

namespace StressManager {

/// How stresses are designed; the numbers are the host's, 0 at first.
enum DesignType : int {};

}  // namespace StressManager

#endif
