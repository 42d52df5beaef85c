#ifndef VARNEL_CONTRACTS_TOOLS_ERROR_H
#define VARNEL_CONTRACTS_TOOLS_ERROR_H

#include <exception>
#include <memory>
#include <string>
#include <utility>

#include "varnel/contracts/Export.h"

namespace Tools {

/// An error with a message for the user, thrown by value. Copies share the message, so copying never throws.
class VARNEL_EXPORT Error : public std::exception {
  public:
    /// A null message counts as an empty one.
    explicit Error(const char *message) : Error(std::string(message ? message : "")) {}
    explicit Error(std::string message) : message_(std::make_shared<const std::string>(std::move(message))) {}
    Error(const Error &) noexcept = default;
    Error &operator=(const Error &) noexcept = default;
    ~Error() override = default;

    const char *what() const noexcept override { return message_->c_str(); }

  private:
    std::shared_ptr<const std::string> message_;
};

}  // namespace Tools

#endif
