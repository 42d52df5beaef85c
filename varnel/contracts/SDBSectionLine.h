#ifndef VARNEL_CONTRACTS_SDBSECTIONLINE_H
#define VARNEL_CONTRACTS_SDBSECTIONLINE_H

#include <memory>

#include "varnel/contracts/SDBSection.h"

/// The cross-section of a beam: a rectangle, a circle, or of general shape with a given area.
class VARNEL_EXPORT SDBSectionLine : public SDBSection {
  public:
    enum Kind : int { GENERAL = 0, RECT, CIRCLE };

    /// A section of general shape; `area` in m2.
    SDBSectionLine(const std::string &name, double area) : SDBSection(name, area) {}
    static std::unique_ptr<SDBSectionLine> makeRectangle(const std::string &name, double width,
                                                         double height);
    static std::unique_ptr<SDBSectionLine> makeCircle(const std::string &name, double diameter);

    Kind getKind() const { return kind_; }
    /// Dimensions in m; 0 where the shape has none.
    double getWidth() const { return kind_ == RECT ? first_ : 0.0; }
    double getHeight() const { return second_; }
    double getDiameter() const { return kind_ == CIRCLE ? first_ : 0.0; }
    /// Change the shape and with it the area.
    void setRectangle(double width, double height);
    void setCircle(double diameter);

    /// Makes the shape a general one of that area.
    void setArea(double area) override;

  private:
    void setShape(Kind kind, double first, double second, double area);

    Kind kind_ = GENERAL;
    double first_ = 0.0;   // width or diameter
    double second_ = 0.0;  // height
};

#endif
