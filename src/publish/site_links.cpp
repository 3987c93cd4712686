#include "publish/site_links.h"

#include "page/numbers.h"
#include "text/rounding.h"
#include "viewer/page_code.h"

namespace publish {

namespace {

constexpr char16_t kFloating[] = u"FLOTTANT";

QString address(char16_t kind, int number) {
    return QStringLiteral("#") + QChar(kind) + QString::number(number);
}

/// A launch code is ten times a module's number, with an exercise in its last digit.
QString ofLaunchCode(int code) {
    if (code < 10)
        return {};
    const QString module = address(u'm', code / 10);
    return code % 10 == 0 ? module : module + u'-' + QString::number(code % 10);
}

} // namespace

QString SiteLinks::ofCode(const QString& code) const {
    const QStringView prefix = viewer::codePrefix(code);
    const auto number = text::toInt16(viewer::codeArgument(code));
    if (!number)
        return {};
    if (prefix == u"PAG") {
        const auto position = pages_.positionShown(code);
        const auto shown = position ? pages_.number(*position) : std::nullopt;
        return shown ? address(u'p', *shown) : QString();
    }
    if (prefix == u"EXO")
        return tests_.contains(*number) ? address(u't', *number) : QString();
    if (prefix == u"EXE")
        return ofLaunchCode(*number);
    return {};
}

QString SiteLinks::of(const page::LinkArea& link) const {
    if (link.tag == kFloating)
        return link.picture < 0 ? QString() : address(u'f', link.picture);
    return ofCode(link.tag);
}

QString SiteLinks::ofPageNumber(const QString& tag) const {
    const auto number = text::toInt16(page::leadingNumber(tag));
    return number ? ofCode(viewer::pageCode(*number)) : QString();
}

} // namespace publish
