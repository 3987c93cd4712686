#include "authoring/targets.h"

#include "authoring/writer.h"

#include <algorithm>

namespace authoring {

namespace {

constexpr int kHighestNumber = 999;
constexpr int kModules[] = {2, 7, 9, 10, 23};

/// The number that follows `word`; nothing when the target starts with another one.
std::optional<QStringView> after(QStringView target, QStringView word) {
    return target.startsWith(word) ? std::optional(target.sliced(word.size())) : std::nullopt;
}

std::optional<int> number(QStringView digits) {
    bool ok = false;
    const int value = digits.toInt(&ok);
    const bool plain =
        std::all_of(digits.begin(), digits.end(), [](QChar c) { return c >= u'0' && c <= u'9'; });
    return ok && plain && value <= kHighestNumber ? std::optional(value) : std::nullopt;
}

std::optional<Target> numbered(Target::Kind kind, QStringView digits) {
    const auto value = number(digits);
    return value ? std::optional(Target{kind, *value}) : std::nullopt;
}

/// The module's number, and the exercise after a slash: one digit.
std::optional<Target> module(QStringView text) {
    const qsizetype slash = text.indexOf(u'/');
    const auto which = number(slash < 0 ? text : text.first(slash));
    const auto exercise = slash < 0 ? std::optional(0) : number(text.sliced(slash + 1));
    if (!which || !exercise || *exercise > 9 ||
        std::find(std::begin(kModules), std::end(kModules), *which) == std::end(kModules))
        return std::nullopt;
    return Target{Target::Kind::Module, 10 * *which + *exercise};
}

} // namespace

QString Target::code() const {
    switch (kind) {
    case Kind::Page:
        return QStringLiteral("PAG") + threeDigits(number);
    case Kind::Test:
        return QStringLiteral("EXO") + threeDigits(number);
    case Kind::Module:
        return QStringLiteral("EXE") + threeDigits(number);
    case Kind::Order:
        break;
    }
    return QStringLiteral("BDC000");
}

std::optional<Target> readTarget(const QString& target, std::size_t at, Faults& faults) {
    std::optional<Target> read;
    if (const auto digits = after(target, u"page:"))
        read = numbered(Target::Kind::Page, *digits);
    else if (const auto chapter = after(target, u"exo:"))
        read = numbered(Target::Kind::Test, *chapter);
    else if (const auto which = after(target, u"module:"))
        read = module(*which);
    else if (target == u"commande:")
        read = Target{Target::Kind::Order, 0};
    if (!read)
        faults.add(at, QStringLiteral("« %1 » : un lien mène à page:N ou exo:N (N de 0 à 999), à "
                                      "module:N (2, 7, 9, 10 ou 23, puis /E pour l’exercice E) ou "
                                      "à commande:")
                           .arg(target));
    return read;
}

std::optional<QString> readKey(const QString& target, QStringView word, std::size_t at,
                               Faults& faults) {
    const auto key = after(target, word);
    if (!key)
        return std::nullopt;
    const bool fits = key->size() == 2 && std::all_of(key->begin(), key->end(), [](QChar c) {
                          return c > u' ' && c < u'\u007F' && c != u'#';
                      });
    if (fits)
        return key->toString();
    faults.add(at, QStringLiteral("« %1 » : la clé d’un symbole a deux caractères ; "
                                  "« orvalente-cours symbols » en montre la liste")
                       .arg(target));
    return QStringLiteral("LK");
}

} // namespace authoring
