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
//   A read-only item lays out and draws its text itself. It does not create the
//   text control of QGraphicsTextItem, because that takes several times as long as
//   the layout of a short text. It creates a document only for document(),
//   textCursor(), adjustSize(), pictures of emoji, tabs, soft hyphens, justified
//   text and a few rare formats. For this reason, some functions below, such as
//   document() and toPlainText(), hide functions of QGraphicsTextItem with the same
//   name: call them on a TextItem. Called through a QGraphicsTextItem pointer, the
//   non-virtual functions act on the base's own, empty document, and create it. The
//   virtual ones, such as boundingRect() and paint(), act on the text.
//
//   SetReadOnly(false) gives the document to the base's control, which then
//   draws and edits it, without line limit, elision, highlight and clicks on
//   mentions. SetReadOnly(true) takes it back.
//
// Selection
//
//   setTextInteractionFlags() lets the user select in a read-only item: with the left
//   button of the mouse; words by a double click, paragraphs by a triple click; more
//   by Shift and a click, or an arrow, Home or End. Ctrl+C and the context menu copy.
//   An ellipsis stands for the text that it hides: selected with it, that is copied, too.
//   While the text is elided, a tooltip shows it whole.
//
//   At most one item of a scene has a selection. It lasts until another begins, the left
//   button is pressed elsewhere in the scene, or the text changes. It has the colours of
//   the palette of the view.
//
//   When a selection begins, a child of its item gets the keyboard focus of the scene, and
//   the view that of the window, unless its focus policy is Qt::NoFocus. A click does not
//   take the focus. It goes to the item below the text when the button is released: until then, it
//   could become a selection.
//
// Markup
//
//   With SetMarkupEnabled(true), inserted text may contain elements:
//
//     <m user="123">shown name</m>    a mention of the user with that number
//     <m bot="77">shown name</m>      a mention of a bot
//     <e code="1F600"/>               an emoji, by its code point
//     <e code="1F469-200D-1F4BB">any text</e>
//                                     an emoji of several code points; the
//                                     text is for programs that do not know it
//
//   Numbers are decimal, may be negative, and have 64 bits. Code points are
//   hexadecimal, in upper or lower case. There are at most 16 of them, and they
//   must form one emoji. Names must not be empty. "&lt;", "&gt;" and "&amp;"
//   stand for their characters in names and in the text outside of elements.
//   They are replaced once: "&amp;lt;" is shown as "&lt;". Elements must be
//   written exactly as above and cannot contain other elements. Everything else
//   is shown unchanged, including its tags, and the text inside of it is read
//   like any other text. Text is never read as HTML.
//
//   A mention has the colour MentionColor() and otherwise the format of its
//   text. The mouse cursor over it is a pointing hand. It is clicked when the
//   left button is pressed and released on its glyphs. An ellipsis is not part
//   of a mention. All other presses go to the items below, or select. A name changes the
//   order of no text beside it: explicit directions are removed from it, and a
//   name of right-to-left letters after other text is put between U+2068 and
//   U+2069.
//
//   An emoji is shown as its Unicode characters, unless the application has a
//   picture of it (see KestroControlSupport) when it is inserted. The picture is
//   as high as a line of the text. toPlainText() returns the characters in its
//   place; document() contains an object character.
//
// Display limit
//
//   For some texts, the text engine's time grows with the square of their
//   length. So only the start of a text is shown: up to a cost of 16,000 in all,
//   and up to 2,000 between two places where a line can break.
//   A character costs 1. It costs 8 more if it ends a line, if it follows text
//   of another script or direction, or if it is the third combining mark or a
//   later one on a letter. Each call of InsertRichText(), and each element in
//   it, also costs 8. Emoji and other pictographs, and the zero width joiners
//   between them, cost 40 more, and each half of a flag 20.
//   The rest of the text is kept, but only as plain text. With SetElide(true) an
//   ellipsis is shown in its place. Real messages are within the limit.
//
//   SetMaximumCost() sets a limit for Cost(), for texts that share one. In Cost(), emoji,
//   pictographs and flags count five times. A text that has nothing left of its maximum
//   shows the ellipsis only.
//
//   Text that is inserted into document() directly has no limit.
#pragma once

#include "kestro_control/KestroControlExport.h"
#include "kestro_control/KestroFontBindSupport.h"

#include <QBrush>
#include <QGraphicsLayoutItem>
#include <QGraphicsTextItem>
#include <QPair>
#include <QStringList>
#include <QTextCursor>
#include <QTextOption>
#include <QVector>

#include <memory>

class QTextCharFormat;

class KESTRO_CONTROL_API TextItem : public QGraphicsTextItem,
                                    public QGraphicsLayoutItem,
                                    public KestroFontBindSupport {
    Q_OBJECT
    Q_INTERFACES(QGraphicsLayoutItem)
    Q_PROPERTY(QString plainText READ toPlainText)
    Q_PROPERTY(int shownLineCount READ ShownLineCount)
    Q_PROPERTY(QVector<int> lineStarts READ ShownLineStarts)
    Q_PROPERTY(bool elided READ IsElided)
    Q_PROPERTY(QFont font READ font)
    Q_PROPERTY(Qt::TextInteractionFlags textInteractionFlags READ textInteractionFlags WRITE
                   setTextInteractionFlags)
    Q_PROPERTY(QString selectedText READ SelectedText)

public:
    // `parent` owns the item, as with every graphics item. `parentLayout` does
    // not. Both may be null.
    explicit TextItem(QGraphicsItem* parent = nullptr, QGraphicsLayoutItem* parentLayout = nullptr);
    ~TextItem() override;

    // ----- Text

    // Inserts `text` at the end of the document (`append`) or at its start.
    // Every character stands for itself, except in markup while that is enabled.
    // "\n" starts a new paragraph. Without `format`, the text has the item's
    // font and default colour and follows their changes. `format` is copied.
    // Control characters and unpaired surrogates are harmless, and keep their
    // place in the text. If an insertion at the start makes the text exceed the
    // display limit, the earlier text loses its formats.
    void InsertRichText(const QString& text, bool append, const QTextCharFormat* format = nullptr);

    // Whether text that is inserted from now on may contain markup. Off at first.
    void SetMarkupEnabled(bool enabled);

    // Removes the text. Font, colour, widths, limits and the formats of the
    // document's root frame stay.
    void ClearText();

    // Replaces the text with `text`, without a format and without markup.
    void setPlainText(const QString& text);

    // All of the text, including what is not shown. No-break spaces become
    // spaces, as in QTextDocument.
    QString toPlainText() const;

    // The document of the text, up to the display limit. The first call makes it.
    // The item owns it and never replaces it. It may be changed: for example, the
    // format of its root frame (a top margin moves the text down) or its default
    // text option (alignment, direction). The item then shows the change. It has no
    // document margin. An item with a document needs more than twice the memory and
    // the time, so prefer the functions of TextItem.
    QTextDocument* document() const;

    // For a read-only item, a cursor at the start of the text; for an editable
    // one, the cursor that the user sees.
    QTextCursor textCursor() const;

    // ----- Look

    // The font of text without a format. Formats may override parts of it.
    QFont font() const;
    void setFont(const QFont& font);

    // The colour of text whose format has no foreground. With an invalid colour,
    // text is drawn in black, as with a QPen.
    QColor defaultTextColor() const;
    void setDefaultTextColor(const QColor& color);

    // The colour of the mentions that are inserted from now on; "#118dff" at
    // first.
    QColor MentionColor() const;
    void SetMentionColor(const QColor& color);

    // Where lines break when there is a fixed width. Without one, they break at
    // line and paragraph separators only. Values outside of the enumeration are
    // ignored.
    void SetWrapMode(QTextOption::WrapMode mode);

    // The alignment of the lines in a fixed width, or in the natural one. Left and
    // right change places in paragraphs that read from right to left, except with
    // Qt::AlignAbsolute.
    Qt::Alignment TextAlignment() const;
    void SetTextAlignment(Qt::Alignment alignment);

    // The direction in which the paragraphs read. With Qt::LayoutDirectionAuto, as at
    // first, the first letter of each paragraph that has a direction decides.
    void SetTextDirection(Qt::LayoutDirection direction);

    // The directions of all paragraphs, in their order. There is at least one.
    QVector<Qt::LayoutDirection> ParagraphDirections() const;

    // Sets the top margin and the height of the root frame that document() has. The
    // margin moves the text down; it is rounded to whole pixels. With the height 0,
    // the frame is as high as the text.
    void SetFrame(qreal height, qreal topMargin);

    // Lays the text out in this width. Negative widths, infinity and NaN restore
    // the natural width, which is that of the widest shown line. With a width of
    // zero, the item shows nothing; it is as high as in its natural width.
    // Setting the same width again does nothing. The maximum is about a million
    // pixels, because of the text engine's number format; larger widths are
    // reduced to it.
    void SetFixedItemWidth(qreal width);

    // The same as SetFixedItemWidth(), under the name that QGraphicsTextItem has
    // for it, and the width that was set: -1 for the natural width.
    void setTextWidth(qreal width);
    qreal textWidth() const;

    // The width of boundingRect() without a fixed width and without a line limit, and
    // the number of lines then.
    struct NaturalSize {
        qreal width;
        int lineCount;
    };
    NaturalSize NaturalLines() const;

    // Picks a fixed width as QTextDocument::adjustSize() does.
    void adjustSize();

    // The maximum number of shown lines, including empty paragraphs. Zero or
    // less: no limit.
    void SetMaxLineCount(int count);

    // Whether lines end in an ellipsis: the last shown line if text follows it,
    // and every line that is wider than the fixed width. Off at first: the text
    // is then cut off without one.
    void SetElide(bool elide);

    // The maximum of Cost(). There is none at first. Applies to text that is inserted from
    // now on.
    void SetMaximumCost(int cost);

    // What the shown part of the text costs (see "Display limit").
    int Cost() const;

    // Whether a part of the text is not shown because of SetMaximumCost().
    bool ExceedsMaximumCost() const;

    // ----- Highlight

    // Draws `brush` behind all occurrences of `words` in the shown text, in upper
    // or lower case. Occurrences may overlap and may cross spans, but not
    // paragraphs. The text on the highlight is black or white, whichever has the
    // higher contrast to the colour of the brush. Replaces the earlier highlight;
    // without words, or with empty ones only, there is none. Does not change the
    // document or its layout; when they change, the highlight follows. Only the
    // first 1,000 words count.
    void HighlightText(const QStringList& words, const QBrush& brush);

    // The ranges of toPlainText() that the words cover, as pairs of start and end, and
    // the brush behind them.
    QVector<QPair<int, int>> HighlightedRanges() const;
    QBrush HighlightBrush() const;

    // ----- Mentions

    // The number of mentions that were inserted, shown or not.
    int MentionCount() const;

    // The rectangle around the shown glyphs of a mention; empty if none is shown.
    // `index` counts the mentions from 0, in the order of the text.
    QRectF MentionRect(int index) const;

    // The name that the mention shows; empty for another index.
    QString MentionText(int index) const;

    // Emits the signal that a click on the mention emits. Does nothing for another
    // index.
    void ClickMention(int index);

    // ----- What is shown

    // The number of shown lines; 0 for an empty document.
    int ShownLineCount() const;

    // The index of the first character of each shown line. It counts the characters of
    // toPlainText() from 0.
    QVector<int> ShownLineStarts() const;

    // Whether any shown line ends in an ellipsis.
    bool IsElided() const;

    // The distance from the top of boundingRect() to the baseline of the first
    // shown line; the font's ascent if no line is shown.
    qreal FirstLineAscent() const;

    // The rectangle of a character. `index` counts the characters of toPlainText() from
    // 0. Empty if the character is not shown. If several of them are seen as one, such as
    // those of an emoji, that one.
    QRectF CharacterRect(int index) const;

    // The index of the shown character at a point, the first one if several are seen as one;
    // -1 if there is none. An ellipsis counts as the last character before it.
    int CharacterAt(const QPointF& point) const;

    // ----- Selection

    // What the user may do with a read-only text, apart from clicking mentions:
    //   Qt::NoTextInteraction         nothing, as at first
    //   Qt::TextSelectableByMouse     select, extend the selection by mouse or keys, copy
    //   Qt::TextSelectableByKeyboard  alone: copy the whole text from the context menu
    // Other flags are ignored: SetReadOnly() lets the user edit.
    void setTextInteractionFlags(Qt::TextInteractionFlags flags);
    Qt::TextInteractionFlags textInteractionFlags() const;

    bool HasSelection() const;

    // As a part of toPlainText(). Empty without a selection.
    QString SelectedText() const;

    // The selected characters of toPlainText(), as a pair of start and end. (0, 0) without
    // a selection.
    QPair<int, int> SelectedRange() const;

    // The end of the selection that mouse and keys move, as a place in toPlainText(); 0
    // without a selection.
    int CursorPosition() const;

    // Selects the whole text, if the user may select. Leaves the keyboard focus where it
    // is. The selection of another item of the scene ends.
    void SelectAll();

    // The same for a part of toPlainText(). It is extended to what readers see as whole
    // characters: an emoji, or a letter with its accents. Nothing is selected if the part is
    // empty.
    void Select(int start, int end);

    void ClearSelection();

    // ----- Editing

    // Read-only items leave every mouse, hover and key event to the items below
    // them, except clicks on mentions and what selects. Subclasses may override this.
    void SetReadOnly(bool readOnly);
    bool IsReadOnly() const;

    // ----- KestroFontBindSupport

    // Sets the font family to that of the application's support object, if the
    // item follows it. The constructor does the same.
    void FontChanged() override;

    // ----- QGraphicsLayoutItem

    // The height of boundingRect() and no width, for Qt::MinimumSize,
    // Qt::PreferredSize and Qt::MaximumSize; no size for other hints.
    QSizeF sizeHint(Qt::SizeHint which, const QSizeF& constraint = QSizeF()) const override;

    // Moves the item to the top left corner of `rect`. The width of the text
    // does not change.
    void setGeometry(const QRectF& rect) override;

    // ----- QGraphicsItem

    // For a read-only item, the rectangle of the shown lines. Its left is 0. It
    // is as wide as the fixed width or, without one, as the widest shown line. It
    // reaches from the top of the first shown line to the bottom of the last one;
    // without a line, its height is 0.
    QRectF boundingRect() const override;
    QPainterPath shape() const override;
    // The rectangle of what paint() draws. Glyphs may be higher than boundingRect().
    QRectF InkRect() const;
    bool contains(const QPointF& point) const override;
    void paint(QPainter* painter, const QStyleOptionGraphicsItem* option, QWidget* widget) override;

    // These would bypass the item's own document. Use document().
    void setHtml(const QString& html) = delete;
    void setDocument(QTextDocument* document) = delete;

Q_SIGNALS:
    // The user has clicked the mention of the user, or of the bot, with this
    // number. Slots may delete the item.
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
    QVariant itemChange(GraphicsItemChange change, const QVariant& value) override;

private:
    class Private;
    const std::unique_ptr<Private> private_;
};
