#ifndef VARNEL_EXCHANGE_UNCHANGEDMEMORY_H
#define VARNEL_EXCHANGE_UNCHANGEDMEMORY_H

#include <optional>

#include "varnel/exchange/VarnelExchangeXml.h"

/// Remembers, while the system is written, whether the model was unchanged: each answer walks the whole
/// model, and every edge of every plate asks. Nothing that is written changes the model.
class VarnelExchangeXml::UnchangedMemory {
  public:
    explicit UnchangedMemory(UnchangedMemory *&slot) : slot_(slot), outer_(slot) { slot_ = this; }
    UnchangedMemory(const UnchangedMemory &) = delete;
    UnchangedMemory &operator=(const UnchangedMemory &) = delete;
    ~UnchangedMemory() { slot_ = outer_; }

    template <class Ask>
    bool answer(Ask ask) {
        if (!unchanged_) unchanged_ = ask();
        return *unchanged_;
    }

  private:
    UnchangedMemory *&slot_;
    UnchangedMemory *outer_;
    std::optional<bool> unchanged_;
};

#endif
