#ifndef VARNEL_CONTRACTS_STANDARD_CLASSIFICATION_H
#define VARNEL_CONTRACTS_STANDARD_CLASSIFICATION_H

namespace Standard {

/// The classification of a structure by its standard; the numbers are the host's and pass through unchanged.
enum Classification : int {};

}  // namespace Standard

#endif
