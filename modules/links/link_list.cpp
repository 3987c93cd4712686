#include "links/link_list.h"

#include "common/entries.h"
#include "common/qt_text.h"

#include <QFile>

namespace links {

namespace {

bool isComplete(const Link& link) {
    return !link.name.isEmpty() && !link.description.isEmpty() && link.address.isValid() &&
           link.address.scheme() == QStringLiteral("https") && !link.address.host().isEmpty();
}

bool areComplete(const std::vector<LinkGroup>& groups) {
    for (const LinkGroup& group : groups) {
        if (group.links.empty())
            return false;
        for (const Link& link : group.links) {
            if (!isComplete(link))
                return false;
        }
    }
    return true;
}

/// Takes one line; false when it is out of place.
bool take(const common::Entry& entry, std::vector<LinkGroup>& groups) {
    if (entry.key == u"groupe") {
        groups.push_back({common::qtText(entry.value), {}});
        return true;
    }
    if (groups.empty())
        return false;
    std::vector<Link>& links = groups.back().links;
    if (entry.key == u"nom") {
        links.push_back({common::qtText(entry.value), {}, {}});
        return true;
    }
    if (links.empty())
        return false;
    if (entry.key == u"texte")
        links.back().description = common::qtText(entry.value);
    else if (entry.key == u"adresse")
        links.back().address = QUrl(common::qtText(entry.value), QUrl::StrictMode);
    else
        return false;
    return true;
}

} // namespace

std::optional<std::vector<LinkGroup>> parseLinks(const QString& text) {
    const auto entries = common::parseEntries(common::utf16(text));
    if (!entries)
        return std::nullopt;
    std::vector<LinkGroup> groups;
    for (const common::Entry& entry : *entries) {
        if (!take(entry, groups))
            return std::nullopt;
    }
    return areComplete(groups) ? std::optional(groups) : std::nullopt;
}

std::vector<LinkGroup> ownLinks() {
    QFile file(QStringLiteral(":/links/liens.txt"));
    if (!file.open(QIODevice::ReadOnly))
        return {};
    return parseLinks(QString::fromUtf8(file.readAll())).value_or(std::vector<LinkGroup>());
}

} // namespace links
