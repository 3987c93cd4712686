#include "orderform/order.h"

#include "orderform/price.h"

#include <algorithm>

namespace orderform {

namespace {

constexpr qsizetype kFrenchPostcodeDigits = 5;

bool isDigit(QChar c) {
    return c >= u'0' && c <= u'9';
}

bool hasOnlyDigits(const QString& text) {
    return !text.isEmpty() && std::all_of(text.begin(), text.end(), isDigit);
}

bool isForFrance(const Order& order) {
    return order[Field::Country].compare(u"France", Qt::CaseInsensitive) == 0;
}

/// What pasted text may carry unseen. A mark of direction would print a name backwards, and a name
/// of such characters alone would print as nothing.
bool isInvisible(QChar c) {
    return c.category() == QChar::Other_Format ||
           (c.category() == QChar::Other_Control && !c.isSpace());
}

QString tidiedText(const QString& typed) {
    QString text = typed;
    text.removeIf(isInvisible);
    // Letter and accent in one: apart they count twice, and the paper shows them side by side.
    return text.simplified().normalized(QString::NormalizationForm_C);
}

/// What an empty field is asked for; empty for those that may stay so.
QString request(Field field) {
    switch (field) {
    case Field::Surname:
        return QStringLiteral("Indiquez votre nom");
    case Field::FirstName:
        return QStringLiteral("Indiquez votre prénom");
    case Field::Address:
        return QStringLiteral("Indiquez votre adresse");
    case Field::Town:
        return QStringLiteral("Indiquez la ville");
    case Field::Country:
        return QStringLiteral("Indiquez le pays");
    case Field::AddressMore:
    case Field::Postcode:
    case Field::Quantity:
        break;
    }
    return {};
}

} // namespace

QString fieldName(Field field) {
    switch (field) {
    case Field::Surname:
        return QStringLiteral("Nom");
    case Field::FirstName:
        return QStringLiteral("Prénom");
    case Field::Address:
        return QStringLiteral("Adresse");
    case Field::AddressMore:
        return QStringLiteral("Complément d’adresse");
    case Field::Postcode:
        return QStringLiteral("Code postal");
    case Field::Town:
        return QStringLiteral("Ville");
    case Field::Country:
        return QStringLiteral("Pays");
    case Field::Quantity:
        break;
    }
    return QStringLiteral("Quantité");
}

Order newOrder() {
    Order order;
    order[Field::Country] = QStringLiteral("France");
    order[Field::Quantity] = QString::number(kFewestCopies);
    return order;
}

Order tidied(const Order& order) {
    Order result;
    std::transform(order.texts.begin(), order.texts.end(), result.texts.begin(), tidiedText);
    if (isForFrance(result))
        result[Field::Postcode].remove(u' ');
    return result;
}

QString faultOf(const Order& order, Field field) {
    const QString& text = order[field];
    if (field == Field::Quantity)
        return copies(order) ? QString()
                             : QStringLiteral("Un nombre entier de %1 à %2")
                                   .arg(kFewestCopies)
                                   .arg(kMostCopies);
    if (field == Field::Postcode && isForFrance(order))
        return hasOnlyDigits(text) && text.size() == kFrenchPostcodeDigits
                   ? QString()
                   : QStringLiteral("En France, le code postal a cinq chiffres, comme 69003");
    if (text.isEmpty())
        return request(field);
    if (text.size() > kLongestText)
        return QStringLiteral("%1 caractères au plus").arg(kLongestText);
    return {};
}

std::vector<Field> faultyFields(const Order& order) {
    std::vector<Field> faulty;
    std::copy_if(kFields.begin(), kFields.end(), std::back_inserter(faulty),
                 [&order](Field field) { return !faultOf(order, field).isEmpty(); });
    return faulty;
}

std::optional<int> copies(const Order& order) {
    const QString& text = order[Field::Quantity];
    if (!hasOnlyDigits(text))
        return std::nullopt;
    bool isNumber = false;
    const int number = text.toInt(&isNumber);
    if (!isNumber || number < kFewestCopies || number > kMostCopies)
        return std::nullopt;
    return number;
}

} // namespace orderform
