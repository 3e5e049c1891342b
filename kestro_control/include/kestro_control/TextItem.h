// A graphics item that shows text in spans of different formats, with mentions,
// emoji and highlighted words, a line limit and elision.
//
//     auto* item = new TextItem(parent);
//     item->SetFixedItemWidth(200);
//     item->SetMaxLineCount(2);
//     item->SetElide(true);
//     item->InsertRichText(text, true);
//
// Lengths are logical pixels in the item's own coordinates. Everything belongs
// to the GUI thread.
//
// Read-only (as created) and editable items
//
//   A read-only item lays its document out and draws it itself. The text
//   control of QGraphicsTextItem, which costs several times the layout of a
//   short text, is not even created. Hence the functions below that hide
//   functions of QGraphicsTextItem with the same name: call them on a TextItem.
//   Through a QGraphicsTextItem pointer the non-virtual functions act on the
//   base's own, empty document, and create it; the virtual ones, such as
//   boundingRect() and paint(), act on the text.
//
//   SetReadOnly(false) hands the document to the base's control, which from
//   then on draws and edits it: without line limit, elision, highlight and
//   clicks on mentions. SetReadOnly(true) takes it back.
//
// Markup
//
//   With SetMarkupEnabled(true), text that is inserted may hold elements:
//
//     <m user="123">shown name</m>    a mention of the user with that number
//     <m bot="77">shown name</m>      a mention of a bot
//     <e code="1F600"/>               an emoji, by its code point
//     <e code="1F469-200D-1F4BB">any text</e>
//                                     an emoji of several code points; the
//                                     text is for those who do not know it
//
//   Numbers are decimal, with or without a minus, and have 64 bits. Code points
//   are hexadecimal, in either case, at most 16 of them and such as make up one
//   emoji. Names are not empty. "&lt;", "&gt;" and "&amp;" stand for their
//   characters in names and in the text outside of elements; each is undone
//   once. Elements are written exactly as above and hold no elements. Whatever
//   is not such an element is shown as it stands, tags and all, and what is
//   inside of it is read like any other text. Nothing is ever taken for HTML.
//
//   A mention has MentionColor() and otherwise the format of its text. It
//   shows a hand to the mouse and is clicked when the left button goes down
//   and up on its glyphs; an ellipsis belongs to no mention. All other presses
//   are for the items below.
//
//   An emoji is its Unicode characters, unless the application has a picture
//   for it (see KestroControlSupport) when it is inserted. The picture is as
//   high as a line of the text; toPlainText() has the characters in its place,
//   document() an object character.
//
// Display limit
//
//   The text engine's time grows with the square of the length of some texts,
//   so the start of a text is shown only, up to a cost of 16,000 for all of it
//   and of 2,000 for any stretch in which lines cannot break between words.
//   A character costs 1. It costs 8 more if it ends a line, if it follows text
//   of another script or direction, if it is the third mark or more on a letter;
//   and so does every call of InsertRichText() and each element in it. A zero
//   width joiner, which emoji sequences are made with, costs 40 more.
//   The rest, which real messages do not have, is held as plain text only.
//   With SetElide(true) an ellipsis takes its place.
//
//   Text that is put into document() by other means has no limit.
#pragma once

#include "kestro_control/KestroControlExport.h"
#include "kestro_control/KestroFontBindSupport.h"

#include <QBrush>
#include <QGraphicsLayoutItem>
#include <QGraphicsTextItem>
#include <QStringList>
#include <QTextCursor>
#include <QTextOption>

#include <memory>

class QTextCharFormat;

class KESTRO_CONTROL_API TextItem : public QGraphicsTextItem,
                                    public QGraphicsLayoutItem,
                                    public KestroFontBindSupport {
    Q_OBJECT
    Q_INTERFACES(QGraphicsLayoutItem)
    Q_PROPERTY(QString plainText READ toPlainText)
    Q_PROPERTY(int shownLineCount READ ShownLineCount)
    Q_PROPERTY(bool elided READ IsElided)
    Q_PROPERTY(QFont font READ font)

public:
    // `parent` owns the item, as with every graphics item. `parentLayout` does
    // not. Both may be null.
    explicit TextItem(QGraphicsItem* parent = nullptr, QGraphicsLayoutItem* parentLayout = nullptr);
    ~TextItem() override;

    // ----- Text

    // Inserts `text` at the end of the document (`append`) or at its start.
    // Every character stands for itself, but for markup while that is enabled.
    // "\n" starts a new paragraph. Without `format` the text has the item's
    // font and default colour, as they are at any time; `format` is copied.
    // Control characters and broken surrogates are harmless, and keep their
    // place in the text. An insertion at the start that takes the text past the
    // display limit costs the earlier text its formats.
    void InsertRichText(const QString& text, bool append, const QTextCharFormat* format = nullptr);

    // Whether text that is inserted from now on may hold markup. Off at first.
    void SetMarkupEnabled(bool enabled);

    // Removes the text. Font, colour, widths, limits and the formats of the
    // document's root frame stay.
    void ClearText();

    // Replaces the text by `text`, without a format of its own and without
    // markup.
    void setPlainText(const QString& text);

    // All of the text, also what is not shown. No-break spaces are spaces, as
    // with QTextDocument.
    QString toPlainText() const;

    // The text that is shown; the item's own for as long as it lives. It may be
    // changed at will, such as by the format of its root frame (a top margin
    // moves the text down) or its default text option (alignment, direction);
    // what is shown follows. It has no margin.
    QTextDocument* document() const;

    // A cursor at the start of the text of a read-only item; the cursor that
    // the user sees in an editable one.
    QTextCursor textCursor() const;

    // ----- Look

    // The font of text without a format, and of what formats leave open.
    QFont font() const;
    void setFont(const QFont& font);

    // The colour of text whose format has no foreground. An invalid colour is
    // drawn as an invalid QPen colour is: in black.
    QColor defaultTextColor() const;
    void setDefaultTextColor(const QColor& color);

    // The colour of the mentions that are inserted from now on; "#118dff" at
    // first.
    QColor MentionColor() const;
    void SetMentionColor(const QColor& color);

    // Where lines break when there is a fixed width. Without one they break
    // at line and paragraph separators only. Values that are none of
    // QTextOption's change nothing.
    void SetWrapMode(QTextOption::WrapMode mode);

    // Lays the text out in this width. Negative and not finite widths: back to
    // the natural width, that is, as wide as the widest shown line. Zero: there
    // is no room; the item has the height of its natural width and shows nothing.
    // Setting the same width again costs nothing. Widths beyond what the text
    // engine can count (about a million pixels) are cut to that.
    void SetFixedItemWidth(qreal width);

    // The same as SetFixedItemWidth() under the name that QGraphicsTextItem's
    // users know, and what was set: -1 for the natural width.
    void setTextWidth(qreal width);
    qreal textWidth() const;

    // Picks a fixed width as QTextDocument::adjustSize() does.
    void adjustSize();

    // At most this many lines are shown, counting also empty paragraphs. Zero
    // and less: no limit.
    void SetMaxLineCount(int count);

    // Whether the last line ends in an ellipsis when the line limit leaves
    // text over, and likewise every line that is wider than the fixed width.
    // Off at first: then the line limit and the item's edges just cut.
    void SetElide(bool elide);

    // ----- Highlight

    // Draws `brush` behind all occurrences of all `words` in what is shown,
    // whatever their case, over the borders of spans, overlapping ones too; the
    // text on it is black or white, whichever reads better on the colour of the
    // brush. Words do not reach from one paragraph into another. Replaces the
    // earlier highlight; no words, or empty ones only: there is none. The
    // document and its layout stay as they are; when they change, the highlight
    // follows. At most 1,000 words count.
    void HighlightText(const QStringList& words, const QBrush& brush);

    // ----- What is shown

    // Lines on show: 0 for an empty document.
    int ShownLineCount() const;

    // Whether any shown line ends in an ellipsis.
    bool IsElided() const;

    // From the top of boundingRect() to the baseline of the first shown line;
    // the font's ascent when no line is shown.
    qreal FirstLineAscent() const;

    // ----- Editing

    // Read-only items leave every mouse, hover and key event to the items
    // below them, but for clicks on mentions; subclasses may decide otherwise.
    void SetReadOnly(bool readOnly);
    bool IsReadOnly() const;

    // ----- KestroFontBindSupport

    // Takes over the family that the application's support object names while
    // the item follows it, as it does at its creation.
    void FontChanged() override;

    // ----- QGraphicsLayoutItem

    // The height of boundingRect(), without a wish for a width; nothing for
    // other kinds than Qt::MinimumSize, Qt::PreferredSize and Qt::MaximumSize.
    QSizeF sizeHint(Qt::SizeHint which, const QSizeF& constraint = QSizeF()) const override;

    // Moves the item to the top left corner of `rect`. The width of the text
    // does not change.
    void setGeometry(const QRectF& rect) override;

    // ----- QGraphicsItem

    // Exactly what is shown of a read-only item: from x = 0, as wide as the
    // fixed width or else as the widest shown line, and from the top of the
    // first shown line to the bottom of the last one. Without a line it has no
    // height and, without a fixed width, no width.
    QRectF boundingRect() const override;
    QPainterPath shape() const override;
    bool contains(const QPointF& point) const override;
    void paint(QPainter* painter, const QStyleOptionGraphicsItem* option, QWidget* widget) override;

    // These would act behind the document's back. Use document() and
    // SetReadOnly().
    void setHtml(const QString& html) = delete;
    void setDocument(QTextDocument* document) = delete;
    void setTextInteractionFlags(Qt::TextInteractionFlags flags) = delete;

Q_SIGNALS:
    // The user has clicked the mention of a user, or of a bot, that carries
    // this number. Receivers may delete the item.
    void MentionClicked(qint64 userNo);
    void BotMentionClicked(qint64 userNo);

protected:
    bool sceneEvent(QEvent* event) override;
    void mousePressEvent(QGraphicsSceneMouseEvent* event) override;
    void mouseMoveEvent(QGraphicsSceneMouseEvent* event) override;
    void mouseReleaseEvent(QGraphicsSceneMouseEvent* event) override;
    void mouseDoubleClickEvent(QGraphicsSceneMouseEvent* event) override;
    void contextMenuEvent(QGraphicsSceneContextMenuEvent* event) override;
    void hoverEnterEvent(QGraphicsSceneHoverEvent* event) override;
    void hoverMoveEvent(QGraphicsSceneHoverEvent* event) override;
    void hoverLeaveEvent(QGraphicsSceneHoverEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;

private:
    class Private;
    const std::unique_ptr<Private> private_;
};
