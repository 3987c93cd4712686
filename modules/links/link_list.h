#pragma once

#include <QString>
#include <QUrl>

#include <optional>
#include <vector>

namespace links {

struct Link {
    QString name;
    QString description; ///< one line
    QUrl address;        ///< https only
};

struct LinkGroup {
    QString title;
    std::vector<Link> links;
};

/// The list as `common/entry_file.h` reads it: "groupe" starts a group, "nom" a link, "texte" and
/// "adresse" belong to the link before. Absent when the list is damaged: a link without an address
/// or a text, an address that is not https, a line out of place.
std::optional<std::vector<LinkGroup>> parseLinks(const QString& text);

/// The list that comes with the program.
std::vector<LinkGroup> ownLinks();

} // namespace links
