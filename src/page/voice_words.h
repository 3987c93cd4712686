#pragma once

#include <QString>

namespace page {

/// A text as a voice has to be given it: with words for the signs that voices leave out or say in
/// another language ("=", "−", "≤", the stroke in "m/s"). Screen readers have such tables of their
/// own, which their users choose.
QString voiceWords(const QString& spoken);

} // namespace page
