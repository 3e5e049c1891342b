#include "view/CardPreview.h"

#include "CardFile.h"
#include "check/CardText.h"
#include "check/CheckOptions.h"
#include "check/LookCheck.h"
#include "check/TextCheck.h"
#include "view/PictureSource.h"
#include "view/ViewFonts.h"

#include <utility>

namespace plix::tool {

// The card that is shown, with its text and what was read of it.
struct CardPreview::Shown {
    QByteArray text;
    JsonNode root;
    LiveCard card;
    std::vector<std::unique_ptr<ShownItem>> items;
};

CardPreview::CardPreview(PictureSource& pictures, CardEvents& events, ViewFonts& fonts,
                         const PreviewDelays& delays)
    : pictures_(pictures)
    , events_(events)
    , fonts_(fonts)
{
    for (QTimer* timer : {&refreshTimer_, &lookTimer_})
        timer->setSingleShot(true);
    refreshTimer_.setInterval(delays.buildMilliseconds);
    lookTimer_.setInterval(delays.lookMilliseconds);
    connect(&refreshTimer_, &QTimer::timeout, this, &CardPreview::refresh);
    connect(&lookTimer_, &QTimer::timeout, this, &CardPreview::look);
}

CardPreview::~CardPreview() = default;

void CardPreview::setText(const QByteArray& json)
{
    if (json == text_)
        return;
    text_ = json;
    refreshTimer_.start();
}

void CardPreview::setSettings(const ViewSettings& settings)
{
    const bool mustBuild = needsNewCard(settings_, settings);
    settings_ = settings;
    pictures_.setFolder(settings.card.images);
    pictures_.setNetworkUsed(settings.usesNetwork);
    fonts_.setFamily(settings.fontFamily);
    if (!shown_)
        return;
    if (mustBuild)
        return refresh();
    shown_->card.setBackground(settings.card.background);
    shown_->card.highlight(settings.card.highlight);
    lookTimer_.start();
}

void CardPreview::setPixelRatio(double ratio)
{
    if (shown_)
        shown_->card.setPixelRatio(ratio);
}

double CardPreview::pixelRatio() const
{
    return shown_ ? shown_->card.pixelRatio() : 1;
}

QGraphicsObject* CardPreview::card() const
{
    return shown_ ? shown_->card.item() : nullptr;
}

const std::vector<std::unique_ptr<ShownItem>>& CardPreview::items() const
{
    static const std::vector<std::unique_ptr<ShownItem>> none;
    return shown_ ? shown_->items : none;
}

bool CardPreview::isCurrent() const
{
    return shown_ && shown_->text == text_;
}

void CardPreview::refresh()
{
    refreshTimer_.stop();
    lookTimer_.stop();
    TextCheck check = checkText(text_);
    textFindings_ = std::move(check.findings);
    findings_ = textFindings_;
    const Finding* const refusal = findRefusal(textFindings_);
    failure_ = refusal ? refusal->message : QString();
    if (failure_.isEmpty() && check.card)
        build(std::move(*check.card));
    Q_EMIT checked();
    lookTimer_.start();
}

void CardPreview::build(JsonNode root)
{
    Q_EMIT building();
    std::unique_ptr<Shown> shown(new Shown {
        text_, std::move(root), LiveCard(text_, settings_.card, pictures_, events_), {}});
    if (!shown->card.item()) {
        failure_ = QStringLiteral("the card cannot be built");
        return;
    }
    shown->items = shownItems(*shown->card.item(), shown->root);
    std::swap(shown_, shown);
    Q_EMIT cardChanged();
}

void CardPreview::look()
{
    if (!isCurrent() || losesParts(textFindings_))
        return;
    CheckOptions options;
    options.card = settings_.card;
    if (settings_.card.height)
        options.heights = QVector<int> {*settings_.card.height};
    findings_ = textFindings_;
    LookCheck(CardFile(QString(), text_), shown_->root, options, findings_).check();
    placeFindings(text_, findings_);
    Q_EMIT checked();
}

} // namespace plix::tool
