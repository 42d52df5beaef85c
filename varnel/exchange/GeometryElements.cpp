// Outlines and lines: "AREA", "RECTAN", "POLY", "EDGE", "LINE", "XIS" and the lists "POINTS" and "LINES".

#include "varnel/contracts/KzMath.h"
#include "varnel/contracts/KzXmlDataUtil.h"
#include "varnel/exchange/ElementReading.h"
#include "varnel/exchange/ElementWriting.h"
#include "varnel/exchange/VarnelExchangeXml.h"
#include "varnel/geometry/VarnelAreaPolygon.h"
#include "varnel/geometry/VarnelAreaRectangle.h"
#include "varnel/geometry/VarnelBeamGeo.h"
#include "varnel/geometry/VarnelCircle.h"
#include "varnel/geometry/VarnelLineVisitor.h"
#include "varnel/geometry/VarnelPoint.h"
#include "varnel/geometry/VarnelPolyline.h"
#include "varnel/geometry/VarnelStraight.h"
#include "varnel/model/Varnel.h"

namespace {

constexpr const char *straightType = "STRAIGHT";
constexpr const char *circleType = "CIRCLE";

/// Writes a line by its kind at the cursor.
class OutputLine : public VarnelLineVisitor {
  public:
    explicit OutputLine(VarnelExchangeXml &exchange) : exchange_(exchange) {}

    /// An arc opens no "LINE": its parts stand in the element itself, "TYPE" as a child. Readers of the
    /// format, ours among them, take it for the chord between its ends.
    int visit(VarnelCircle *circle) override {
        exchange_.updateValueToKey("TYPE", circleType);
        exchange_.updateVectorToKey("CENTER", circle->getCenterVec());
        exchange_.updateVectorToKey("START", circle->getStartVec());
        exchange_.updateVectorToKey("END", circle->getEndVec());
        return 1;
    }

    int visit(VarnelStraight *straight) override {
        exchange_.open("LINE");
        exchange_.setAttribute("TYPE", straightType);
        exchange_.updateVectorToKey("START", straight->getStartVec());
        exchange_.updateVectorToKey("END", straight->getEndVec());
        exchange_.close();
        return 1;
    }

  private:
    VarnelExchangeXml &exchange_;
};

}  // namespace

void VarnelExchangeXml::updateOneLine(VarnelLine *line) {
    OutputLine output(*this);
    if (line) line->getVisited(&output);
}

std::unique_ptr<VarnelLine> VarnelExchangeXml::getLine(KzXmlData *element) const {
    KzVector3D start, end;
    if (const KzXmlData *line = element ? element->findChild("LINE") : nullptr) {
        const std::string type = KzXmlDataUtil::getAttributeString(line, "TYPE");
        getVectorToKey(line, "START", start);
        getVectorToKey(line, "END", end);
        if (type == straightType) return std::make_unique<VarnelStraight>(start, end);
        if (type != circleType) return nullptr;
        KzVector3D center;
        getVectorToKey(line, "CENTER", center);
        // The constructor takes centre, start, end, yet the format hands over start, end, centre: files of
        // other producers count on it.
        return std::make_unique<VarnelCircle>(start, end, center);
    }
    // The form of old documents, and that of our own arcs.
    if (!getVectorToKey(element, "POSA", start)) getVectorToKey(element, "START", start);
    if (!getVectorToKey(element, "POSE", end)) getVectorToKey(element, "END", end);
    return std::make_unique<VarnelStraight>(start, end);
}

void VarnelExchangeXml::updateArea(VarnelLineHolder *holder) {
    if (!holder) return;
    auto *rectangle = dynamic_cast<VarnelAreaRectangle *>(holder);
    if (rectangle && rectangle->getNumLines() > 0) {
        KzVector3D position;
        double width = 0.0, height = 0.0, angle = 0.0;
        rectangle->getAreaRectangle(position, width, height, angle);
        open("RECTAN");
        setAttribute("WIDTH", width);
        setAttribute("HEIGHT", height);
        setAttribute("ANGLE", angle / KzMath::Pi * 180.0);
        updateVectorToKey("POS", position);
        close();
        return;
    }
    open("AREA");
    flush();
    for (std::size_t i = 0; i < holder->getNumLines(); ++i) updateOutlineEdge(holder->getLine(i), i);
    close();
}

void VarnelExchangeXml::updateOutlineEdge(VarnelLine *line, std::size_t index) {
    openToAttribute("EDGE", "POS",
                    static_cast<int>(index) + 1);  // from 1, where the edges of "BOUNDS" start at 0
    updateOneLine(line);
    if (line && line->hasXis()) {
        open("XIS");
        for (int i = 0; i <= line->getNumberOfParts(); ++i) {
            openToAttribute("XI", "POS", i);
            setAttribute("VAL", line->xiToPosition(i));
            close();
        }
        close();
    }
    close();
}

VarnelLineHolder *VarnelExchangeXml::readOneArea(KzXmlData *element, Varnel *model, bool holderOnly) {
    if (!element) return nullptr;
    if (KzXmlData *area = element->findChild("AREA")) {
        std::unique_ptr<VarnelLineHolder> holder;
        if (holderOnly)
            holder = std::make_unique<VarnelBeamGeo>();
        else if (model)
            holder.reset(model->giveAreaPolygon());
        else
            holder = std::make_unique<VarnelAreaPolygon>();
        getAreaPolygon(area, model, holder.get());
        return holder.release();
    }
    if (KzXmlData *rectangle = element->findChild("RECTAN")) return getAreaRectangle(rectangle, model);
    if (KzXmlData *polygon = element->findChild("POLY")) return getPolygon(polygon, model);
    return nullptr;
}

/// The outline as an area, which passes to the caller; null without one.
VarnelArea *VarnelExchangeXml::readOutline(KzXmlData *element, Varnel *model) {
    std::unique_ptr<VarnelLineHolder> outline(readOneArea(element, model, false));
    auto *area = dynamic_cast<VarnelArea *>(outline.get());
    if (area) static_cast<void>(outline.release());
    return area;
}

void VarnelExchangeXml::getAreaPolygon(KzXmlData *areaElement, Varnel *, VarnelLineHolder *holder) {
    if (!holder) return;
    // The divisions "XIS" stay in the file: the mesher makes them anew.
    varnel::eachChild(areaElement,
                      [this, holder](KzXmlData *edge) { holder->addLine(getLine(edge).release()); });
    if (auto *area = dynamic_cast<VarnelArea *>(holder)) area->meltFirstAndLast();
}

VarnelAreaPolygon *VarnelExchangeXml::getPolygon(KzXmlData *polyElement, Varnel *model) {
    std::unique_ptr<VarnelAreaPolygon> polygon(model ? model->giveAreaPolygon() : new VarnelAreaPolygon);
    varnel::eachChild(polyElement,
                      [this, &polygon](KzXmlData *corner) { polygon->addVertex(getVector(corner)); });
    return polygon.release();
}

VarnelAreaRectangle *VarnelExchangeXml::getAreaRectangle(KzXmlData *rectanElement, Varnel *model) {
    KzVector3D position;
    if (!getVectorToKey(rectanElement, "POS", position)) return nullptr;
    double width = 0.0, height = 0.0, angle = 0.0;
    KzXmlDataUtil::readValToAttribute(rectanElement, "WIDTH", width);
    KzXmlDataUtil::readValToAttribute(rectanElement, "HEIGHT", height);
    KzXmlDataUtil::readValToAttribute(rectanElement, "ANGLE", angle);
    angle *= KzMath::Pi / 180.0;
    if (!model) return new VarnelAreaRectangle(position, width, height, angle);
    return model->giveAreaRectangle(position, width, height, angle);
}

VarnelPolyline *VarnelExchangeXml::getPolyline(KzXmlData *element) {
    auto polyline = std::make_unique<VarnelPolyline>();
    varnel::eachChild(element, [this, &polyline](KzXmlData *vertex) { polyline->add(getVector(vertex)); });
    return polyline.release();
}

void VarnelExchangeXml::updatePoints(Varnel *model) {
    if (!model) return;
    varnel::rebuildList(*this, "POINTS", "POINT", model->getPoints(), [](const VarnelPoint *) {});
}

void VarnelExchangeXml::updateLines(Varnel *model) {
    if (!model) return;
    open("LINES");
    flush();
    for (VarnelLine *line : model->getLines()) {
        if (!line) continue;
        openToAttribute("LINE", "NUMBER", 0);  // lines bear no numbers: all of them meet in one element
        updateOneLine(line);
        close();
    }
    close();
}
