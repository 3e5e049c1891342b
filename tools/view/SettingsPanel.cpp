#include "view/SettingsPanel.h"

#include "model/format/PlixFormat.h"

#include <QCheckBox>
#include <QColor>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QFileDialog>
#include <QFontDatabase>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QScopedValueRollback>
#include <QSpinBox>
#include <QToolButton>

#include <algorithm>

namespace plix::tool {
namespace {

constexpr int kMaximumWindowWidth = 2000;
constexpr double kMaximumDpi = 16;

// The only wording that the library asks for.
const QString kWording = QStringLiteral("chat_room_check_on_mobile");
const QString kAnyFamily = QStringLiteral("That of the application");

// The languages that the card format knows.
QStringList languages()
{
    QStringList codes {QStringLiteral("en")};
    const PlixFormatComponent* const text = FindComponentFormat("text");
    const PlixFormatKey* const texts = text ? FindKeyFormat(*text, "i18nTexts") : nullptr;
    if (!texts)
        return codes;
    for (const PlixFormatWord& word : texts->words) {
        const QString code =
            QString::fromUtf8(word.word.data(), static_cast<int>(word.word.size()));
        if (!codes.contains(code) && code != QLatin1String("default"))
            codes.append(code);
    }
    return codes;
}

QSpinBox* numberBox(int maximum, const QString& nothing)
{
    auto* const box = new QSpinBox;
    box->setRange(0, maximum);
    box->setSingleStep(10);
    box->setSpecialValueText(nothing);
    box->setSuffix(QStringLiteral(" px"));
    box->setKeyboardTracking(false);
    return box;
}

} // namespace

SettingsPanel::SettingsPanel(bool hasNetwork, QWidget* parent)
    : QWidget(parent)
    , language_(new QComboBox)
    , from_(new QComboBox)
    , height_(numberBox(kMaximumCardHeight, QStringLiteral("As its content")))
    , background_(new QLineEdit)
    , highlight_(new QLineEdit)
    , family_(new QComboBox)
    , wrapMode_(new QComboBox)
    , markup_(new QCheckBox(QStringLiteral("&Mention and emoji markup")))
    , mobileOnlyCheck_(new QCheckBox(QStringLiteral("Links for mobile &apps do not work")))
    , wording_(new QLineEdit)
    , dark_(new QCheckBox(QStringLiteral("Dar&k chat")))
    , windowWidth_(numberBox(kMaximumWindowWidth, QStringLiteral("Wide enough")))
    , dpi_(new QDoubleSpinBox)
    , images_(new QLineEdit)
    , network_(new QCheckBox(QStringLiteral("Fetch pictures from the &network")))
{
    auto* const form = new QFormLayout(this);
    addCardControls(*form);
    addTextControls(*form);
    addChatControls(*form);
    addPictureControls(*form, hasNetwork);
    connectControls();
}

void SettingsPanel::addCardControls(QFormLayout& form)
{
    language_->setEditable(true);
    language_->addItems(languages());
    from_->addItem(QStringLiteral("Somebody else"), 0);
    from_->addItem(QStringLiteral("The user"), 1);
    background_->setPlaceholderText(QStringLiteral("#RRGGBB or a name; empty: its own"));
    background_->setClearButtonEnabled(true);
    form.addRow(QStringLiteral("&Language"), language_);
    form.addRow(QStringLiteral("&Sender"), from_);
    form.addRow(QStringLiteral("Minimum &height"), height_);
    form.addRow(QStringLiteral("&Bubble colour"), background_);
}

void SettingsPanel::addTextControls(QFormLayout& form)
{
    highlight_->setPlaceholderText(QStringLiteral("Words, with blanks between them"));
    highlight_->setClearButtonEnabled(true);
    family_->addItem(kAnyFamily);
    family_->addItems(QFontDatabase().families());
    // In the order of QTextOption::WrapMode.
    wrapMode_->addItems({QStringLiteral("Not at all"), QStringLiteral("Between words"),
                         QStringLiteral("As given by hand"), QStringLiteral("Anywhere"),
                         QStringLiteral("Between words, or anywhere")});
    // Long words must not make the panel wider.
    for (QComboBox* box : {family_, wrapMode_})
        box->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    wording_->setPlaceholderText(kWording);
    form.addRow(QStringLiteral("H&ighlight"), highlight_);
    form.addRow(QStringLiteral("F&ont"), family_);
    form.addRow(QStringLiteral("Lines b&reak"), wrapMode_);
    form.addRow(markup_);
    form.addRow(mobileOnlyCheck_);
    form.addRow(QStringLiteral("Wording for &those"), wording_);
}

void SettingsPanel::addChatControls(QFormLayout& form)
{
    dpi_->setRange(0, kMaximumDpi);
    dpi_->setSingleStep(0.25);
    dpi_->setSpecialValueText(QStringLiteral("As the screen"));
    dpi_->setKeyboardTracking(false);
    form.addRow(QStringLiteral("&Width of the chat"), windowWidth_);
    form.addRow(QStringLiteral("&Device pixels"), dpi_);
    form.addRow(dark_);
}

void SettingsPanel::addPictureControls(QFormLayout& form, bool hasNetwork)
{
    auto* const row = new QHBoxLayout;
    auto* const choose = new QToolButton;
    choose->setText(QStringLiteral("…"));
    choose->setFocusPolicy(Qt::StrongFocus);
    choose->setAccessibleName(QStringLiteral("Choose the folder of the pictures"));
    images_->setPlaceholderText(QStringLiteral("A folder"));
    row->addWidget(images_, 1);
    row->addWidget(choose);
    form.addRow(QStringLiteral("&Pictures"), row);
    qobject_cast<QLabel*>(form.labelForField(row))->setBuddy(images_);
    form.addRow(network_);
    network_->setEnabled(hasNetwork);
    connect(choose, &QToolButton::clicked, this, &SettingsPanel::chooseFolder);
}

void SettingsPanel::connectControls()
{
    for (QComboBox* box : {language_, from_, family_, wrapMode_})
        connect(box, &QComboBox::currentTextChanged, this, &SettingsPanel::change);
    for (QSpinBox* box : {height_, windowWidth_})
        connect(box, qOverload<int>(&QSpinBox::valueChanged), this, &SettingsPanel::change);
    connect(dpi_, qOverload<double>(&QDoubleSpinBox::valueChanged), this, &SettingsPanel::change);
    for (QLineEdit* line : {background_, highlight_, wording_, images_})
        connect(line, &QLineEdit::textChanged, this, &SettingsPanel::change);
    for (QCheckBox* box : {markup_, mobileOnlyCheck_, dark_, network_})
        connect(box, &QCheckBox::toggled, this, &SettingsPanel::change);
}

void SettingsPanel::change()
{
    if (!isSetting_)
        Q_EMIT changed();
}

ViewSettings SettingsPanel::settings() const
{
    ViewSettings settings = settings_;
    CardOptions& card = settings.card;
    card.language = language_->currentText().trimmed();
    card.from = from_->currentData().toInt();
    card.height = height_->value() > 0 ? std::optional<int>(height_->value()) : std::nullopt;
    // While a colour is being written, it is none.
    const bool isColor = QColor::isValidColor(background_->text());
    card.background = isColor ? background_->text() : QString();
    card.highlight = highlight_->text().split(QLatin1Char(' '), Qt::SkipEmptyParts);
    card.markup = markup_->isChecked();
    card.mobileOnlyCheck = mobileOnlyCheck_->isChecked();
    card.wrapMode = wrapMode_->currentIndex();
    card.wordings.insert(kWording, wording_->text());
    card.images = images_->text();
    card.dpi =
        dpi_->value() > 0 ? std::optional<float>(static_cast<float>(dpi_->value())) : std::nullopt;
    settings.fontFamily = family_->currentIndex() > 0 ? family_->currentText() : QString();
    settings.isDark = dark_->isChecked();
    settings.windowWidth = windowWidth_->value();
    settings.usesNetwork = network_->isChecked();
    return settings;
}

void SettingsPanel::setSettings(const ViewSettings& settings)
{
    {
        const QScopedValueRollback<bool> setting(isSetting_, true);
        settings_ = settings;
        const CardOptions& card = settings.card;
        language_->setCurrentText(card.language.isEmpty() ? QStringLiteral("en") : card.language);
        from_->setCurrentIndex(card.from == 1 ? 1 : 0);
        height_->setValue(card.height.value_or(0));
        background_->setText(card.background);
        highlight_->setText(card.highlight.join(QLatin1Char(' ')));
        markup_->setChecked(card.markup);
        mobileOnlyCheck_->setChecked(card.mobileOnlyCheck);
        wrapMode_->setCurrentIndex(card.wrapMode);
        wording_->setText(card.wordings.value(kWording));
        images_->setText(card.images);
        dpi_->setValue(static_cast<double>(card.dpi.value_or(0)));
        family_->setCurrentIndex(std::max(0, family_->findText(settings.fontFamily)));
        dark_->setChecked(settings.isDark);
        windowWidth_->setValue(settings.windowWidth);
        network_->setChecked(settings.usesNetwork);
    }
    Q_EMIT changed();
}

void SettingsPanel::toggleDark()
{
    dark_->toggle();
}

void SettingsPanel::chooseFolder()
{
    const QString folder = QFileDialog::getExistingDirectory(
        this, QStringLiteral("Folder of the pictures"), images_->text());
    if (!folder.isEmpty())
        images_->setText(folder);
}

} // namespace plix::tool
