#ifndef VARNEL_CONTRACTS_SDBSECTION_H
#define VARNEL_CONTRACTS_SDBSECTION_H

#include <string>

#include "varnel/contracts/Export.h"
#include "varnel/contracts/NamedList.h"

/// A cross-section: name and area. Born changed; setters raise the flag when the value differs.
class VARNEL_EXPORT SDBSection {
  public:
    /// `area` in m2.
    SDBSection(const std::string &name, double area) : name_(name), area_(area) {}
    /// The copy belongs to no manager.
    SDBSection(const SDBSection &) = default;
    SDBSection &operator=(const SDBSection &) = delete;
    virtual ~SDBSection() = default;

    const std::string &getName() const { return name_.get(); }
    void setName(const std::string &name);
    /// Area in m2.
    virtual double getArea() const { return area_; }
    virtual void setArea(double area);
    bool getChanged() const { return changed_; }
    void setChanged(bool value) { changed_ = value; }
    /// Whether a user defined the section, rather than a program that generated it. True at first.
    bool isUserDefined() const { return userDefined_; }
    void setUserDefined(bool value);

  private:
    friend class varnel::NamedList<SDBSection>;

    varnel::ListedName<SDBSection> name_;
    double area_;
    bool userDefined_ = true;
    bool changed_ = true;
};

#endif
