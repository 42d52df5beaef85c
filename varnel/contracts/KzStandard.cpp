#include "varnel/contracts/KzStandard.h"

KzStandard *KzStandard::get() {
    static KzStandard standard;
    return &standard;
}
