#ifndef VARNEL_CONTRACTS_STANDARD_BUILDINGTYPE_H
#define VARNEL_CONTRACTS_STANDARD_BUILDINGTYPE_H

namespace Standard {

/// The type of the building; the numbers are the host's and pass through unchanged.
enum BuildingType : int {};

}  // namespace Standard

#endif
