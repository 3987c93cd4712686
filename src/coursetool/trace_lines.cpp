#include "coursetool/trace_lines.h"

#include "coursetool/json_number.h"
#include "coursetool/json_string.h"
#include "markup/control_names.h"
#include "page/twips.h"
#include "page/utf16.h"
#include "text/utf8.h"

namespace coursetool {

namespace {

void appendString(QStringView text, std::string& out) {
    std::string utf8;
    text::appendUtf8(page::utf16(text), utf8);
    appendJsonString(utf8, out);
}

/// One JSON object, field by field in the order of the calls.
class Line {
public:
    Line(std::string_view op, std::string& out) : out_(out) {
        out_ += "{\"op\":";
        appendJsonString(op, out_);
    }
    ~Line() { out_ += "}\n"; }
    Line(const Line&) = delete;
    Line& operator=(const Line&) = delete;

    Line& text(std::string_view name, QStringView value) {
        key(name);
        appendString(value, out_);
        return *this;
    }
    template <class Number>
    Line& number(std::string_view name, Number value) {
        key(name);
        if constexpr (std::is_integral_v<Number>)
            out_ += std::to_string(value);
        else
            appendJsonNumber(value + Number(0), out_); // no "-0"
        return *this;
    }
    Line& flag(std::string_view name, bool value) {
        key(name);
        out_ += value ? "true" : "false";
        return *this;
    }
    Line& colour(std::string_view name, QRgb value) {
        return text(name, QStringLiteral("#%1").arg(value & 0xffffff, 6, 16, QChar(u'0')));
    }
    Line& surface(page::SurfaceId id) { return text("surface", markup::surfaceName(id)); }
    Line& font(const page::Font& font) {
        return text("font", font.face)
            .number("size", font.points)
            .flag("bold", font.bold)
            .flag("italic", font.italic)
            .flag("underline", font.underline);
    }

private:
    void key(std::string_view name) {
        out_ += ',';
        appendJsonString(name, out_);
        out_ += ':';
    }

    std::string& out_;
};

struct Describe {
    std::string& out;

    void operator()(const page::TextOperation& text) const {
        Line("text", out)
            .surface(text.surface)
            .number("x", text.x)
            .number("y", text.y)
            .text("text", text.text)
            .font(text.font)
            .colour("ink", text.ink)
            .number("width", text.width);
    }
    void operator()(const page::LineOperation& line) const {
        Line("line", out)
            .surface(line.surface)
            .number("x1", line.x1)
            .number("y1", line.y1)
            .number("x2", line.x2)
            .number("y2", line.y2)
            .colour("ink", line.ink)
            .number("lineWidth", line.lineWidth);
    }
    void operator()(const page::FillOperation& fill) const {
        const bool mask = fill.mode == page::FillMode::Mask;
        Line("fill", out)
            .surface(fill.surface)
            .number("x", fill.x)
            .number("y", fill.y)
            .number("width", fill.width)
            .number("height", fill.height)
            .colour("ink", fill.ink)
            .text("mode", mask ? u"mask" : u"copy");
    }
    void operator()(const page::PictureOperation& picture) const {
        Line("picture", out)
            .surface(picture.surface)
            .number("x", picture.x)
            .number("y", picture.y)
            .number("width", picture.width)
            .number("height", picture.height)
            .text(picture.symbol ? "key" : "name", picture.name);
    }
    void operator()(const page::LinkOperation& link) const {
        Line("link", out)
            .surface(link.surface)
            .text("control", markup::controlName(link.control))
            .number("index", link.index)
            .number("x", link.x)
            .number("y", link.y)
            .number("width", link.width)
            .number("height", link.height)
            .text("caption", link.caption)
            .text("tag", link.tag)
            .text("tooltip", link.tooltip)
            .text("key", link.key);
    }
    void operator()(const page::MenuOperation& menu) const {
        Line("menu", out)
            .number("menu", menu.menu)
            .number("entry", menu.entry)
            .text("caption", menu.caption)
            .text("target", menu.target);
    }
    void operator()(const page::FieldOperation& field) const {
        Line("field", out)
            .surface(field.surface)
            .text("control", markup::controlName(field.control))
            .number("index", field.index)
            .number("x", field.x)
            .number("y", field.y)
            .number("width", field.width)
            .text("caption", field.caption)
            .text("tag", field.tag)
            .text("tooltip", field.tooltip);
    }
    void operator()(const page::VideoOperation& video) const {
        Line("video", out).text("name", video.name);
    }
    void operator()(const page::SwitchOperation& change) const {
        Line("surface", out).text("name", markup::surfaceName(change.surface));
    }
    void operator()(const page::ClearOperation&) const {}
    void operator()(const page::CaptionOperation& caption) const {
        Line("caption", out).text("text", caption.text);
    }
    void operator()(const page::FailedOperation& failed) const {
        Line("failed", out)
            .number("line", failed.line)
            .text("directive", failed.directive)
            .text("reason", failed.reason);
    }
};

} // namespace

void appendTraceLine(const page::Operation& operation, std::string& out) {
    std::visit(Describe{out}, operation);
}

void appendTraceEnd(const markup::DrawnPage& page, const markup::DrawingState& state,
                    std::string& out) {
    const markup::DrawnPage::Pen& pen = page.end;
    Line("end", out)
        .surface(pen.surface)
        .number("x", pen.place.x())
        .number("y", pen.place.y())
        .number("height", page.heightPx(pen.surface) * page::kTwipsPerPixel)
        .number("hauteurPage", page.hauteurPage)
        .number("alignement", state.alignement)
        .number("margeGauche", state.margeGauche)
        .number("margeDroite", state.margeDroite)
        .number("interligne", state.interligne)
        .font(pen.font)
        .colour("ink", pen.ink);
}

} // namespace coursetool
