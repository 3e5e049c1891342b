#include "ItemText.h"

#include "TextWork.h"

#include <QAbstractTextDocumentLayout>
#include <QTextBlock>
#include <QTextFrame>

#include <cmath>

namespace kestro {

namespace {

// A document rounds lengths down to 1/64 pixel, and the margins of its frames to
// whole pixels.
qreal RoundedMargin(qreal margin)
{
    return std::floor(std::trunc(margin * 64) / 64 + 0.5);
}

} // namespace

ItemText::ItemText(QObject& owner, std::function<void()> onChange)
    : owner_(owner)
    , onChange_(std::move(onChange))
    , paragraphs_(std::in_place)
{
}

ItemText::~ItemText()
{
    if (document_)
        document_->disconnect(&owner_);
    if (watchedLayout_)
        watchedLayout_->disconnect(&owner_);
}

void ItemText::BeginInsertion(bool atEnd)
{
    const bool isAppended = atEnd || IsEmpty();
    if (paragraphs_ && isAppended)
        return;
    if (paragraphs_)
        ChangeToDocument();
    cursor_ = QTextCursor(document_.get());
    if (isAppended)
        cursor_.movePosition(QTextCursor::End);
    cursor_.beginEditBlock();
}

void ItemText::Insert(const QString& text, const QTextCharFormat& format)
{
    if (paragraphs_ && paragraphs_->Runs().CanAppend(text, format)) {
        onChange_();
        paragraphs_->Append(text, format);
    } else {
        InsertionCursor().insertText(text, format);
    }
}

QTextCursor& ItemText::InsertionCursor()
{
    if (paragraphs_) {
        ChangeToDocument();
        cursor_ = QTextCursor(document_.get());
        cursor_.movePosition(QTextCursor::End);
        cursor_.beginEditBlock();
    }
    return cursor_;
}

void ItemText::EndInsertion()
{
    if (cursor_.isNull())
        return;
    cursor_.endEditBlock();
    cursor_ = QTextCursor();
}

void ItemText::Clear()
{
    if (paragraphs_) {
        onChange_();
        paragraphs_->Clear();
        return;
    }
    cursor_.select(QTextCursor::Document);
    cursor_.removeSelectedText();
    cursor_.setBlockFormat(QTextBlockFormat());
    cursor_.setBlockCharFormat(QTextCharFormat());
}

bool ItemText::IsEmpty() const
{
    return paragraphs_ ? paragraphs_->IsEmpty() : document_->isEmpty();
}

QString ItemText::PlainText() const
{
    return paragraphs_ ? paragraphs_->Runs().PlainText() : document_->toPlainText();
}

QTextDocument& ItemText::Document()
{
    if (paragraphs_)
        MakeDocument();
    return *document_;
}

QFont ItemText::Font() const
{
    return paragraphs_ ? paragraphs_->Font() : document_->defaultFont();
}

void ItemText::SetFont(const QFont& font)
{
    onChange_();
    if (paragraphs_ && !TextRuns::CanHave(font))
        MakeDocument();
    if (paragraphs_)
        paragraphs_->SetFont(font);
    else
        document_->setDefaultFont(font);
}

QTextOption ItemText::Option() const
{
    return paragraphs_ ? paragraphs_->Option() : document_->defaultTextOption();
}

void ItemText::SetOption(const QTextOption& option)
{
    onChange_();
    if (paragraphs_ && option.alignment().testFlag(Qt::AlignJustify))
        MakeDocument();
    if (paragraphs_)
        paragraphs_->SetOption(option);
    else
        document_->setDefaultTextOption(option);
}

qreal ItemText::Width() const
{
    return paragraphs_ ? paragraphs_->Width() : document_->textWidth();
}

void ItemText::SetWidth(qreal width)
{
    onChange_();
    if (paragraphs_)
        paragraphs_->SetWidth(width);
    else
        document_->setTextWidth(width);
}

void ItemText::SetFrame(qreal height, qreal topMargin)
{
    frameHeight_ = height;
    topMargin_ = topMargin;
    if (!paragraphs_) {
        ApplyFrame();
    } else if (RoundedMargin(topMargin) != paragraphs_->Top()) {
        onChange_();
        paragraphs_->SetTop(RoundedMargin(topMargin));
    }
}

QVector<Qt::LayoutDirection> ItemText::Directions()
{
    if (paragraphs_)
        return paragraphs_->Directions();
    QVector<Qt::LayoutDirection> directions;
    for (QTextBlock block = document_->begin(); block.isValid(); block = block.next())
        directions.push_back(block.textDirection());
    return directions;
}

const LaidOutText& ItemText::LaidOut()
{
    if (paragraphs_) {
        paragraphs_->LayOut();
        return *paragraphs_;
    }
    WatchDocumentLayout();
    return *documentText_;
}

void ItemText::ChangeToDocument()
{
    onChange_();
    MakeDocument();
}

void ItemText::MakeDocument()
{
    ++WorkSoFar().documents;
    document_ = std::make_unique<QTextDocument>();
    documentText_.emplace(*document_);
    document_->setDocumentMargin(0);
    document_->setUndoRedoEnabled(false);
    document_->setDefaultFont(paragraphs_->Font());
    document_->setDefaultTextOption(paragraphs_->Option());
    QTextCursor cursor(document_.get());
    paragraphs_->Runs().InsertInto(cursor);
    if (paragraphs_->Width() >= 0)
        document_->setTextWidth(paragraphs_->Width());
    ApplyFrame();
    paragraphs_.reset();
    QObject::connect(document_.get(), &QTextDocument::contentsChanged, &owner_,
                     [this] { onChange_(); });
}

void ItemText::ApplyFrame()
{
    QTextFrame* const root = document_->rootFrame();
    QTextFrameFormat format = root->frameFormat();
    format.clearProperty(QTextFormat::FrameHeight);
    if (frameHeight_ > 0) {
        format.setHeight(frameHeight_);
        format.setBorder(0);
    }
    format.setTopMargin(topMargin_);
    if (format != root->frameFormat())
        root->setFrameFormat(format);
}

// The layout reports changes that the document does not: of its width, its font and
// its default text option.
void ItemText::WatchDocumentLayout()
{
    QAbstractTextDocumentLayout* const layout = document_->documentLayout();
    if (watchedLayout_ == layout)
        return;
    watchedLayout_ = layout;
    QObject::connect(layout, &QAbstractTextDocumentLayout::update, &owner_,
                     [this] { onChange_(); });
}

} // namespace kestro
