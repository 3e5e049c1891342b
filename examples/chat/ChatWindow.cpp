#include "ChatWindow.h"

#include <kestro_control/GraphicsViewAccessibility.h>
#include <kestro_control/TextItem.h>

#include <QtNetwork>
#include <QtWidgets>

#include <algorithm>
#include <iostream>

namespace {

constexpr int kMaximumPictureBytes = 32 * 1024 * 1024;
constexpr int kDownloadMilliseconds = 30'000;
constexpr double kMargin = 12;
constexpr double kNameHeight = 18;
constexpr double kMaximumTextWidth = 320;
// In heights of the view. Building a card again takes time and memory, so many are kept.
constexpr double kNear = 0.5;
constexpr double kFar = 20;

// The library logs during the call that reads or builds a card: it is about this one's.
std::string currentSender;

// Cards come from strangers. A page on the web is safe to open, but a file or a program is
// not. A user name in the URL could look like a host: "https://bank.example@evil.example".
bool isWebPage(const QUrl& url)
{
    const bool isWeb =
        url.scheme() == QLatin1String("https") || url.scheme() == QLatin1String("http");
    return isWeb && url.isValid() && !url.host().isEmpty() && url.userInfo().isEmpty();
}

// A plain message, with the colours of a card.
class TextBubble : public TextItem {
public:
    TextBubble(const QString& text, bool isOwn)
        : color_(isOwn ? 0xC0EAFC : 0xF1F3F7)
    {
        InsertRichText(text, true);
        setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
        if (TextItem::boundingRect().width() > kMaximumTextWidth)
            SetFixedItemWidth(kMaximumTextWidth);
    }

    QRectF boundingRect() const override
    {
        return TextItem::boundingRect().adjusted(-kMargin, -kMargin, kMargin, kMargin);
    }

    void paint(QPainter* painter, const QStyleOptionGraphicsItem* option, QWidget* widget) override
    {
        painter->setPen(Qt::NoPen);
        painter->setBrush(color_);
        painter->setRenderHint(QPainter::Antialiasing);
        painter->drawRoundedRect(boundingRect(), kMargin, kMargin);
        TextItem::paint(painter, option, widget);
    }

private:
    QColor color_;
};

void PLIX_CALL onClick(PlixDataController*, ST_ACTION& action, void* chat)
{
    static_cast<ChatWindow*>(chat)->act(action);
}

void PLIX_CALL onMention(std::int64_t number, void* chat)
{
    static_cast<ChatWindow*>(chat)->showStatus(QStringLiteral("User %1").arg(number));
}

std::string PLIX_CALL onDownload(PlixDataController*, const std::string& url, void* chat)
{
    return static_cast<ChatWindow*>(chat)->download(QString::fromStdString(url)).toStdString();
}

} // namespace

// A message. It has items while it is near the visible part.
class ChatWindow::Row {
public:
    explicit Row(const ChatMessage& shown)
        : message(shown)
    {
    }

    ~Row() { release(); }
    Q_DISABLE_COPY(Row)

    void build(ChatWindow& chat)
    {
        if (bubble)
            return;
        if (message.isCard)
            buildCard(chat);
        // The message is no card, or has nothing to show.
        const bool isEmpty = !bubble || bubble->boundingRect().isEmpty();
        if (isEmpty) {
            release();
            bubble = new TextBubble(message.isCard ? QStringLiteral("This message cannot be shown.")
                                                   : message.content,
                                    message.isOwn);
        }
        name_ = new QGraphicsSimpleTextItem(message.sender);
        name_->setBrush(QColor(0x8A, 0x94, 0xA3));
        chat.view_->scene()->addItem(bubble);
        chat.view_->scene()->addItem(name_);
        highlight(chat.words_);
        // For screen readers, which do not find the name above the bubble: it is no QObject.
        const QString words = text().section(QLatin1Char('\n'), 0, message.isCard ? 0 : -1);
        bubble->toGraphicsObject()->setProperty(
            "accessibleName", QStringLiteral("%1: %2").arg(message.sender, words));
    }

    void release()
    {
        delete std::exchange(bubble, nullptr);
        delete std::exchange(name_, nullptr);
        Plix_Free(std::exchange(card_, nullptr));
    }

    QString text() const { return bubble->toGraphicsObject()->property("plainText").toString(); }

    void highlight(const QStringList& words)
    {
        std::list<std::string> list;
        for (const QString& word : words)
            list.push_back(word.toStdString());
        if (auto* const plain = dynamic_cast<TextBubble*>(bubble))
            plain->HighlightText(words, QColor(0x11, 0x8D, 0xFF));
        else
            Plix_SetHighLightText(card_, list);
    }

    // A bubble that is too wide becomes smaller as a whole.
    void place(double y, double width, double zoom, double pixelRatio)
    {
        top = y;
        if (!bubble)
            return;
        const double scale = std::min(zoom, (width - 2 * kMargin) / bubble->boundingRect().width());
        bubble->setScale(scale);
        Plix_SetDpi(card_, static_cast<float>(pixelRatio * scale));
        const auto left = [&](const QRectF& rect) {
            return message.isOwn ? width - kMargin - rect.width() : kMargin;
        };
        name_->setPos(left(name_->boundingRect()), y);
        const QRectF rect = bubble->sceneBoundingRect();
        bubble->moveBy(left(rect) - rect.left(), y + kNameHeight - rect.top());
        height = kNameHeight + rect.height();
    }

    const ChatMessage message;
    double top = 0;
    double height = 250; // a guess, until there is a bubble
    QGraphicsItem* bubble = nullptr;

private:
    void buildCard(ChatWindow& chat)
    {
        currentSender = message.sender.toStdString();
        card_ = Plix_CreateController();
        PlixDisplayParam display;
        display.markupEnabled = true;
        Plix_SetDisplayParam(card_, display);
        Plix_InitSetFrom(card_, message.isOwn ? 1 : 0);
        Plix_SetClickCallBack(card_, &onClick, &chat);
        Plix_SetMentionHandleCallback(card_, &onMention, &chat);
        Plix_SetBotMentionHandleCallback(card_, &onMention, &chat);
        Plix_SetDownloadCallBack(card_, &onDownload, &chat);
        Plix_InitData(card_, message.content.toStdString());
        bubble = Plix_CreateQGraphicsItem(card_);
    }

    PlixDataController* card_ = nullptr; // null for a text
    QGraphicsSimpleTextItem* name_ = nullptr;
};

ChatWindow::ChatWindow(const QUrl& pictureServer)
    : pictureServer_(pictureServer)
    , view_(new QGraphicsView(new QGraphicsScene(this)))
    , scrollBar_(view_->verticalScrollBar())
    , search_(new QLineEdit)
    , input_(new QLineEdit)
{
    Plix_SetWiteLogCallback([](const char* line) {
        std::clog << "A card of " << currentSender << ": " << line << std::endl;
    });
    // The only wording that the library needs.
    Plix_SetMultiLangGetCallback([](const char*) { return std::string("See your phone"); });
    kestro::InstallGraphicsViewAccessibility();
    view_->setAccessibleName(QStringLiteral("Messages"));
    view_->setFrameShape(QFrame::NoFrame);
    view_->setAlignment(Qt::AlignTop | Qt::AlignLeft);
    view_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    view_->setFocusPolicy(Qt::TabFocus); // a click leaves the focus in the input line
    view_->setBackgroundRole(QPalette::Window);
    view_->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(view_, &QWidget::customContextMenuRequested, this, &ChatWindow::showMenu);
    connect(view_->scene(), &QGraphicsScene::focusItemChanged, this,
            [this](QGraphicsItem* item, QGraphicsItem*, Qt::FocusReason reason) {
                if (item && reason != Qt::MouseFocusReason)
                    view_->ensureVisible(item); // what the Tab key has reached
            });
    connect(scrollBar_, &QScrollBar::valueChanged, this, [this](int value) {
        if (!isArranging_)
            followsEnd_ = value == scrollBar_->maximum();
        arrange();
    });
    setWindowTitle(QStringLiteral("Chat"));
    setCentralWidget(view_);
    addControls();
    addShortcuts();
    resize(480, 800);
}

ChatWindow::~ChatWindow() = default;

void ChatWindow::addControls()
{
    search_->setPlaceholderText(QStringLiteral("Search"));
    input_->setPlaceholderText(QStringLiteral("Write a message"));
    auto* const language = new QComboBox;
    language->addItems({QStringLiteral("en"), QStringLiteral("ko"), QStringLiteral("ja")});
    auto* const dark = new QCheckBox(QStringLiteral("&Dark"));
    const auto addBar = [this](Qt::ToolBarArea area, const QList<QWidget*>& widgets) {
        auto* const bar = new QToolBar;
        bar->setMovable(false);
        for (QWidget* widget : widgets)
            bar->addWidget(widget);
        addToolBar(area, bar);
    };
    addBar(Qt::TopToolBarArea, {search_, language, dark});
    addBar(Qt::BottomToolBarArea, {input_});
    statusBar()->setSizeGripEnabled(false);
    connect(search_, &QLineEdit::textChanged, this, &ChatWindow::highlight);
    connect(search_, &QLineEdit::returnPressed, this, &ChatWindow::findOlder);
    connect(language, &QComboBox::currentTextChanged, this, &ChatWindow::setLanguage);
    connect(dark, &QCheckBox::toggled, this, [this](bool isDark) {
        setPalette(isDark ? QPalette(QColor(0x2B, 0x30, 0x38)) : QPalette());
    });
    connect(input_, &QLineEdit::returnPressed, this, [this] {
        say(input_->text());
        input_->clear();
    });
}

void ChatWindow::addShortcuts()
{
    const auto add = [this](const QKeySequence& keys, const std::function<void()>& function) {
        connect(new QShortcut(keys, this), &QShortcut::activated, this, function);
    };
    add(QKeySequence::Find, [this] { search_->setFocus(); });
    add(Qt::Key_Escape, [this] { search_->clear(), input_->setFocus(); });
    add(QKeySequence::ZoomIn, [this] { zoom_ = std::min(zoom_ * 1.25, 3.0), arrange(); });
    add(QKeySequence::ZoomOut, [this] { zoom_ = std::max(zoom_ / 1.25, 0.5), arrange(); });
    add(Qt::Key_PageUp, [this] { scrollBar_->triggerAction(QScrollBar::SliderPageStepSub); });
    add(Qt::Key_PageDown, [this] { scrollBar_->triggerAction(QScrollBar::SliderPageStepAdd); });
}

void ChatWindow::add(const std::vector<ChatMessage>& messages)
{
    for (const ChatMessage& message : messages)
        rows_.push_back(std::make_unique<Row>(message));
    found_ = rows_.size();
    place();
    arrange();
}

void ChatWindow::say(const QString& text)
{
    if (text.trimmed().isEmpty())
        return;
    followsEnd_ = true;
    add({{QStringLiteral("Me"), text, false, true}});
}

void ChatWindow::showStatus(const QString& text)
{
    statusBar()->showMessage(text.simplified());
}

QString ChatWindow::download(const QString& url)
{
    // A hash is a plain file name, whatever the URL contains.
    const QByteArray hash = QCryptographicHash::hash(url.toUtf8(), QCryptographicHash::Sha256);
    QString path = pictures_.filePath(QString::fromLatin1(hash.toHex()));
    if (QFile::exists(path) || loading_.contains(path))
        return path;
    loading_.insert(path);
    QUrl address = pictureServer_;
    address.setQuery(QStringLiteral("url=") + QString::fromLatin1(QUrl::toPercentEncoding(url)));
    QNetworkRequest request(address);
    request.setTransferTimeout(kDownloadMilliseconds);
    QNetworkReply* const reply = network_.get(request);
    connect(reply, &QNetworkReply::downloadProgress, reply, [reply](qint64 bytes) {
        if (bytes > kMaximumPictureBytes)
            reply->abort();
    });
    connect(reply, &QNetworkReply::finished, this, [this, reply, url, path] {
        reply->deleteLater();
        loading_.remove(path);
        QSaveFile file(path); // gets its name when it is complete
        const bool isSaved = reply->error() == QNetworkReply::NoError
            && file.open(QIODevice::WriteOnly) && file.write(reply->readAll()) > 0 && file.commit();
        if (!isSaved)
            showStatus(QStringLiteral("No picture: ") + url);
        // Images look for their files when they are painted. They keep their sizes.
        view_->viewport()->update();
    });
    return path;
}

void ChatWindow::act(const ST_ACTION& action)
{
    if (action.type == "message")
        return say(QString::fromStdString(action.text));
    if (action.type == "postback")
        return showStatus(QStringLiteral("Sent: ") + QString::fromStdString(action.data));
    const std::string& link = action.pcUri.empty() ? action.uri : action.pcUri;
    const QUrl url(QString::fromStdString(link), QUrl::StrictMode);
    if (action.type != "uri" || !isWebPage(url))
        return showStatus(QStringLiteral("Refused: ") + QString::fromStdString(link));
    // Encoded, because letters of other scripts can look like Latin ones.
    showStatus(QStringLiteral("Opens ") + QString::fromLatin1(url.toEncoded()));
    Q_EMIT linkClicked(url);
}

void ChatWindow::showMenu(const QPoint& place)
{
    if (rows_.empty())
        return;
    const Row* const row = &rowAt(view_->mapToScene(place).y());
    auto* const menu = new QMenu(this);
    menu->setPalette(palette());
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->addAction(QStringLiteral("&Copy message"),
                    [text = row->text()] { QApplication::clipboard()->setText(text); });
    menu->addAction(QStringLiteral("&Delete message"), [this, row] {
        const auto isMeant = [row](const auto& other) { return other.get() == row; };
        rows_.erase(std::find_if(rows_.begin(), rows_.end(), isMeant));
        add({});
    });
    menu->popup(view_->viewport()->mapToGlobal(place));
}

void ChatWindow::setLanguage(const QString& code)
{
    // Cards read the language while they are built.
    Plix_SetCurrentLanguage(code.toStdString());
    for (const auto& row : rows_)
        row->release();
    arrange();
}

void ChatWindow::highlight(const QString& words)
{
    words_ = words.split(QLatin1Char(' '), Qt::SkipEmptyParts);
    found_ = rows_.size();
    for (const auto& row : rows_) {
        if (row->bubble)
            row->highlight(words_);
    }
}

void ChatWindow::findOlder()
{
    while (found_ > 0) {
        Row& row = *rows_[--found_];
        const auto isIn = [this](const QString& text) {
            return std::any_of(words_.begin(), words_.end(), [&](const QString& word) {
                return text.contains(word, Qt::CaseInsensitive);
            });
        };
        // The texts of a card are in its JSON, so most cards need not be built for this.
        if (!isIn(row.message.content))
            continue;
        row.build(*this);
        if (!isIn(row.text()))
            continue;
        place();
        scrollBar_->setValue(qRound(row.top));
        return showStatus(QStringLiteral("Found in a message of ") + row.message.sender);
    }
    found_ = rows_.size();
    showStatus(QStringLiteral("Not found"));
}

void ChatWindow::arrange()
{
    if (isArranging_ || rows_.empty() || !isVisible())
        return;
    const QScopedValueRollback<bool> arranging(isArranging_, true);
    // The message at the upper edge stays there while those above it change their heights.
    const Row& row = rowAt(scrollBar_->value());
    const double offset = scrollBar_->value() - row.top;
    do {
        place();
        scrollBar_->setValue(followsEnd_ ? scrollBar_->maximum() : qRound(row.top + offset));
    } while (updateRows());
}

void ChatWindow::place()
{
    const double width = view_->viewport()->width();
    double y = kMargin;
    for (const auto& row : rows_) {
        row->place(y, width, zoom_, devicePixelRatioF());
        y += row->height + kMargin;
    }
    view_->setSceneRect(0, 0, width, y);
}

bool ChatWindow::updateRows()
{
    const double screen = view_->viewport()->height();
    bool hasBuilt = false;
    for (const auto& row : rows_) {
        const double below = row->top - scrollBar_->value() - screen;
        const double above = scrollBar_->value() - row->top - row->height;
        const double screens = std::max(below, above) / screen;
        if (screens > kFar)
            row->release();
        if (screens < kNear && !row->bubble)
            hasBuilt = (row->build(*this), true);
    }
    return hasBuilt;
}

ChatWindow::Row& ChatWindow::rowAt(double y) const
{
    const auto isBelow = [](double place, const auto& row) { return place < row->top; };
    const auto next = std::upper_bound(rows_.begin() + 1, rows_.end(), y, isBelow);
    return **std::prev(next);
}

void ChatWindow::resizeEvent(QResizeEvent* event)
{
    QMainWindow::resizeEvent(event);
    arrange();
}

void ChatWindow::showEvent(QShowEvent* event)
{
    QMainWindow::showEvent(event);
    // Another screen may have another number of pixels.
    connect(windowHandle(), &QWindow::screenChanged, this, &ChatWindow::arrange,
            Qt::UniqueConnection);
    input_->setFocus();
    arrange();
}
