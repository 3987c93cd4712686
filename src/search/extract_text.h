#pragma once

#include "search/query.h"

#include <QString>

namespace search {

/// Passages of a page's text around the words looked for, as rich text: the words marked, all else
/// escaped. A page that shows none of them is said to be so, and its beginning follows.
QString extractHtml(const QString& pageText, const Query& query);

} // namespace search
