#ifndef VARNEL_CONTRACTS_STANDARD_DESIGNMATERIAL_H
#define VARNEL_CONTRACTS_STANDARD_DESIGNMATERIAL_H

namespace Standard {

/// The material that is designed; the numbers are the host's and pass through unchanged.
enum DesignMaterial : int {};

}  // namespace Standard

#endif
