#include "view/ViewSettings.h"

#include <QSettings>
#include <QVariant>

namespace plix::tool {
namespace {

const QString kLanguage = QStringLiteral("card/language");
const QString kFrom = QStringLiteral("card/from");
const QString kDpi = QStringLiteral("card/dpi");
const QString kHeight = QStringLiteral("card/height");
const QString kHighlight = QStringLiteral("card/highlight");
const QString kBackground = QStringLiteral("card/background");
const QString kMarkup = QStringLiteral("card/markup");
const QString kMobileOnlyCheck = QStringLiteral("card/mobileOnlyCheck");
const QString kWrapMode = QStringLiteral("card/wrapMode");
const QString kWordings = QStringLiteral("card/wordings");
const QString kImages = QStringLiteral("card/images");
const QString kFontFamily = QStringLiteral("card/fontFamily");
const QString kDark = QStringLiteral("card/dark");
const QString kWindowWidth = QStringLiteral("card/windowWidth");

// Without what is changed in a card that is built.
ViewSettings readWhileBuilding(ViewSettings settings)
{
    settings.card.dpi.reset();
    settings.card.highlight.clear();
    settings.card.background.clear();
    return settings;
}

template <typename Value> QVariant toVariant(const std::optional<Value>& value)
{
    return value ? QVariant(*value) : QVariant();
}

QVariantMap toVariants(const QMap<QString, QString>& texts)
{
    QVariantMap variants;
    for (auto text = texts.begin(); text != texts.end(); ++text)
        variants.insert(text.key(), text.value());
    return variants;
}

QMap<QString, QString> toTexts(const QVariantMap& variants)
{
    QMap<QString, QString> texts;
    for (auto variant = variants.begin(); variant != variants.end(); ++variant)
        texts.insert(variant.key(), variant.value().toString());
    return texts;
}

template <auto Field> void takeGiven(CardOptions& card, const CardOptions& given)
{
    if (given.*Field != CardOptions().*Field)
        card.*Field = given.*Field;
}

CardOptions loadCard(const QSettings& store)
{
    CardOptions card;
    card.language = store.value(kLanguage).toString();
    card.from = store.value(kFrom, card.from).toInt();
    if (store.contains(kDpi))
        card.dpi = store.value(kDpi).toFloat();
    if (store.contains(kHeight))
        card.height = store.value(kHeight).toInt();
    card.highlight = store.value(kHighlight).toStringList();
    card.background = store.value(kBackground).toString();
    card.markup = store.value(kMarkup, card.markup).toBool();
    card.mobileOnlyCheck = store.value(kMobileOnlyCheck, card.mobileOnlyCheck).toBool();
    card.wrapMode = store.value(kWrapMode, card.wrapMode).toInt();
    card.wordings = toTexts(store.value(kWordings).toMap());
    card.images = store.value(kImages).toString();
    return card;
}

void saveOptional(QSettings& store, const QString& key, const QVariant& value)
{
    if (value.isValid())
        store.setValue(key, value);
    else
        store.remove(key);
}

} // namespace

bool needsNewCard(const ViewSettings& a, const ViewSettings& b)
{
    return !(readWhileBuilding(a).card == readWhileBuilding(b).card) || a.fontFamily != b.fontFamily
        || a.usesNetwork != b.usesNetwork;
}

ViewSettings loadSettings(const QSettings& store, const CardOptions& given)
{
    ViewSettings settings;
    settings.card = loadCard(store);
    takeGiven<&CardOptions::dpi>(settings.card, given);
    takeGiven<&CardOptions::language>(settings.card, given);
    takeGiven<&CardOptions::from>(settings.card, given);
    takeGiven<&CardOptions::height>(settings.card, given);
    takeGiven<&CardOptions::highlight>(settings.card, given);
    takeGiven<&CardOptions::background>(settings.card, given);
    takeGiven<&CardOptions::markup>(settings.card, given);
    takeGiven<&CardOptions::mobileOnlyCheck>(settings.card, given);
    takeGiven<&CardOptions::wrapMode>(settings.card, given);
    takeGiven<&CardOptions::wordings>(settings.card, given);
    takeGiven<&CardOptions::images>(settings.card, given);
    settings.fontFamily = store.value(kFontFamily).toString();
    settings.isDark = store.value(kDark).toBool();
    settings.windowWidth = store.value(kWindowWidth).toInt();
    return settings;
}

void saveSettings(QSettings& store, const ViewSettings& settings)
{
    const CardOptions& card = settings.card;
    saveOptional(store, kDpi, toVariant(card.dpi));
    saveOptional(store, kHeight, toVariant(card.height));
    store.setValue(kLanguage, card.language);
    store.setValue(kFrom, card.from);
    store.setValue(kHighlight, card.highlight);
    store.setValue(kBackground, card.background);
    store.setValue(kMarkup, card.markup);
    store.setValue(kMobileOnlyCheck, card.mobileOnlyCheck);
    store.setValue(kWrapMode, card.wrapMode);
    store.setValue(kWordings, toVariants(card.wordings));
    store.setValue(kImages, card.images);
    store.setValue(kFontFamily, settings.fontFamily);
    store.setValue(kDark, settings.isDark);
    store.setValue(kWindowWidth, settings.windowWidth);
}

} // namespace plix::tool
