#ifndef VARNEL_CONTRACTS_LINK_H
#define VARNEL_CONTRACTS_LINK_H

namespace varnel {

class LinkTarget;

/// One end of a link, chained to the other ends at the same target: see Link.
class LinkEnd {
  public:
    LinkEnd(const LinkEnd &) = delete;
    LinkEnd &operator=(const LinkEnd &) = delete;

  protected:
    LinkEnd() noexcept = default;
    ~LinkEnd() { detach(); }

    void attach(const LinkTarget &target, void *object) noexcept;
    void detach() noexcept {
        if (!object_) return;
        *place_ = next_;
        if (next_) next_->place_ = place_;
        object_ = nullptr;
    }

    void *object_ = nullptr;

  private:
    friend class LinkTarget;

    LinkEnd *next_ = nullptr;
    LinkEnd **place_ = nullptr;  // what points at this end
};

/// Mix-in of objects that others point at without owning them. Dying it clears every link at it; copies have
/// no links.
class LinkTarget {
  protected:
    LinkTarget() noexcept = default;
    LinkTarget(const LinkTarget &) noexcept {}
    LinkTarget &operator=(const LinkTarget &) noexcept { return *this; }
    ~LinkTarget() {
        for (LinkEnd *end = first_; end; end = end->next_) end->object_ = nullptr;
    }

  private:
    friend class LinkEnd;

    mutable LinkEnd *first_ = nullptr;
};

inline void LinkEnd::attach(const LinkTarget &target, void *object) noexcept {
    object_ = object;
    next_ = target.first_;
    place_ = &target.first_;
    if (next_) next_->place_ = &next_;
    target.first_ = this;
}

/// A pointer that becomes null when its target dies. Setting and leaving cost the same however many links a
/// target has.
template <class Target>
class Link : private LinkEnd {
  public:
    Link() noexcept = default;

    Target *get() const noexcept { return static_cast<Target *>(object_); }
    void set(Target *target) noexcept {
        detach();
        if (target) attach(*target, target);
    }
};

}  // namespace varnel

#endif
