#include "varnel/members/VarnelAsFunctional.h"

VarnelAsFunctional::~VarnelAsFunctional() = default;
