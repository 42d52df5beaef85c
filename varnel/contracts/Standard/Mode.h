#ifndef VARNEL_CONTRACTS_STANDARD_MODE_H
#define VARNEL_CONTRACTS_STANDARD_MODE_H

namespace Standard {

/// The code of practice that a project is designed to; the numbers are the host's and pass through unchanged.
enum Mode : int {};

}  // namespace Standard

#endif
