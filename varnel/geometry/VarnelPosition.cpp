#include "varnel/geometry/VarnelPosition.h"

#include "varnel/geometry/NumberIndex.h"

void VarnelPosition::leaveIndex() noexcept {
    index_->leave(*this);
}

void VarnelPosition::refile(int number) noexcept {
    index_->refile(*this, number);
}
