#pragma once

#include "check/Finding.h"
#include "check/JsonNode.h"
#include "check/ShownItem.h"
#include "view/LiveCard.h"
#include "view/ViewSettings.h"

#include <QByteArray>
#include <QObject>
#include <QString>
#include <QTimer>

#include <memory>
#include <vector>

namespace plix::tool {

class CardEvents;
class PictureSource;
class ViewFonts;

// How long nothing must change before the card is built, and before its look is checked.
struct PreviewDelays {
    // Shorter than the time in which one notices it, and long enough that a card is not
    // built for every letter of a fast typist: each card that was built takes some memory.
    int buildMilliseconds = 100;
    int lookMilliseconds = 400;
};

// Turns the text that is edited into a card and into findings. A while after a change the
// card is built; after a longer pause it is checked how it looks. The last good card stays
// while the text is broken. Does nothing while nothing changes.
class CardPreview : public QObject {
    Q_OBJECT

public:
    CardPreview(PictureSource& pictures, CardEvents& events, ViewFonts& fonts,
                const PreviewDelays& delays);
    ~CardPreview() override;

    // The text is read after a short pause.
    void setText(const QByteArray& json);
    // Reads the text that was set last now.
    void refresh();
    void setSettings(const ViewSettings& settings);
    // Of the card that is shown.
    void setPixelRatio(double ratio);
    double pixelRatio() const;

    const QByteArray& text() const { return text_; }
    const Findings& findings() const { return findings_; }
    // Why the text is no card; empty if it is one.
    const QString& failure() const { return failure_; }

    // The last good card; null if there was none.
    QGraphicsObject* card() const;
    const std::vector<std::unique_ptr<ShownItem>>& items() const;
    // Whether the card is that of the text, so that positions in the text are right.
    bool isCurrent() const;

Q_SIGNALS:
    // Before the card is built, for which events are emitted.
    void building();
    // There is another card. The one before it is deleted after the signal.
    void cardChanged();
    // There are other findings, or the text became broken or good.
    void checked();

private:
    struct Shown;

    void build(JsonNode root);
    void look();

    PictureSource& pictures_;
    CardEvents& events_;
    ViewFonts& fonts_;
    ViewSettings settings_;
    QByteArray text_;
    QTimer refreshTimer_;
    QTimer lookTimer_;
    std::unique_ptr<Shown> shown_;
    Findings textFindings_;
    Findings findings_;
    QString failure_;
};

} // namespace plix::tool
