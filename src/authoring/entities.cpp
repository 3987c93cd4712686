#include "authoring/entities.h"

#include <QHash>

namespace authoring {

std::optional<QString> entityText(const QString& entity) {
    static const QHash<QString, QString> kNamed{
        {"amp", "&"},    {"lt", "<"},        {"gt", ">"},    {"quot", "\""},
        {"apos", "'"},   {"nbsp", "\u00A0"}, {"deg", "°"},   {"times", "×"},
        {"hellip", "…"}, {"ndash", "–"},     {"mdash", "—"}, {"laquo", "«"},
        {"raquo", "»"},  {"rsquo", "’"},     {"minus", "−"}, {"middot", "·"}};
    const QString name = entity.mid(1, entity.size() - 2);
    if (!name.startsWith(u'#')) {
        const auto found = kNamed.find(name);
        return found == kNamed.end() ? std::nullopt : std::optional(*found);
    }
    bool ok = false;
    const bool hexadecimal = name.size() > 1 && (name[1] == u'x' || name[1] == u'X');
    const uint code = hexadecimal ? name.mid(2).toUInt(&ok, 16) : name.mid(1).toUInt(&ok);
    const bool shown = ok && code >= 0x20 && code <= 0x10FFFF && !(code >= 0xD800 && code < 0xE000);
    return shown ? std::optional(QString::fromUcs4(reinterpret_cast<const char32_t*>(&code), 1))
                 : std::nullopt;
}

} // namespace authoring
