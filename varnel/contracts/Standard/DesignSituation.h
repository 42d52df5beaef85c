#ifndef VARNEL_CONTRACTS_STANDARD_DESIGNSITUATION_H
#define VARNEL_CONTRACTS_STANDARD_DESIGNSITUATION_H

namespace Standard {

/// The design situation: persistent, accidental and so on; the numbers are the host's and pass through
/// unchanged.
enum DesignSituation : int {};

}  // namespace Standard

#endif
