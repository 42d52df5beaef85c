#ifndef VARNEL_TESTS_SUPPORT_NOTED_H
#define VARNEL_TESTS_SUPPORT_NOTED_H

#include <string>
#include <utility>

namespace varnel {

/// An object that notes its death, so that tests can tell the order in which owners free what they own.
template <class Object>
class Noted : public Object {
  public:
    template <class... Arguments>
    Noted(std::string &notes, char sign, Arguments &&...arguments)
        : Object(std::forward<Arguments>(arguments)...), notes_(notes), sign_(sign) {}
    Noted(const Noted &) = delete;
    Noted &operator=(const Noted &) = delete;
    ~Noted() override { notes_ += sign_; }

  private:
    std::string &notes_;
    char sign_;
};

}  // namespace varnel

#endif
