#include "varnel/exchange/VarnelExchange.h"

VarnelExchange::~VarnelExchange() = default;
