#include "ChatWindow.h"

#include <kestro_control/GraphicsViewAccessibility.h>

#include <QtWidgets>

#include <algorithm>

namespace {

constexpr double kGap = 12;
// In heights of the view. Building a card again takes time and memory, so many are kept.
constexpr double kNear = 0.5;
constexpr double kFar = 20;

// Cards come from strangers. A page on the web is safe to open, but a file or a program is
// not. A user name in the URL could look like a host: "https://bank.example@evil.example".
bool isWebPage(const QUrl& url)
{
    const bool isWeb =
        url.scheme() == QLatin1String("https") || url.scheme() == QLatin1String("http");
    return isWeb && url.isValid() && !url.host().isEmpty() && url.userInfo().isEmpty();
}

} // namespace

ChatWindow::ChatWindow(const QUrl& pictureServer)
    : pictures_(pictureServer)
    , view_(new QGraphicsView(new QGraphicsScene(this)))
    , scrollBar_(view_->verticalScrollBar())
    , search_(new QLineEdit)
    , input_(new QLineEdit)
{
    // The only wording that the library needs.
    Plix_SetMultiLangGetCallback([](const char*) { return std::string("See your phone"); });
    kestro::InstallGraphicsViewAccessibility();
    // Images look for their files when they are painted. They keep their sizes.
    connect(&pictures_, &PictureStore::arrived, view_->viewport(), qOverload<>(&QWidget::update));
    connect(&pictures_, &PictureStore::failed, this,
            [this](const QString& url) { showStatus(QStringLiteral("No picture: ") + url); });
    setWindowTitle(QStringLiteral("Chat"));
    setCentralWidget(view_);
    initView();
    addControls();
    addShortcuts();
    resize(480, 800);
}

ChatWindow::~ChatWindow() = default;

void ChatWindow::initView()
{
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
}

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
        rows_.push_back(std::make_unique<MessageRow>(message));
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

void ChatWindow::showUser(std::int64_t number)
{
    showStatus(QStringLiteral("User %1").arg(number));
}

void ChatWindow::showMenu(const QPoint& place)
{
    if (rows_.empty())
        return;
    const MessageRow* const row = &rowAt(view_->mapToScene(place).y());
    auto* const menu = new QMenu(this);
    menu->setPalette(palette());
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->addAction(QStringLiteral("&Copy message"),
                    [text = row->text()] { QApplication::clipboard()->setText(text); });
    menu->addAction(QStringLiteral("&Delete message"), [this, row] {
        std::erase_if(rows_, [row](const auto& other) { return other.get() == row; });
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
    for (const auto& row : rows_)
        row->highlight(words_);
}

void ChatWindow::findOlder()
{
    const auto hasWord = [this](const QString& text) {
        return std::any_of(words_.begin(), words_.end(), [&](const QString& word) {
            return text.contains(word, Qt::CaseInsensitive);
        });
    };
    while (found_ > 0) {
        MessageRow& row = *rows_[--found_];
        // The texts of a card are in its JSON, so most cards need not be built for this.
        if (!hasWord(row.message().content))
            continue;
        build(row);
        if (!hasWord(row.text()))
            continue;
        place();
        scrollBar_->setValue(qRound(row.top()));
        return showStatus(QStringLiteral("Found in a message of ") + row.message().sender);
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
    const MessageRow& row = rowAt(scrollBar_->value());
    const double offset = scrollBar_->value() - row.top();
    do {
        place();
        scrollBar_->setValue(followsEnd_ ? scrollBar_->maximum() : qRound(row.top() + offset));
    } while (updateRows());
}

void ChatWindow::place()
{
    const double width = view_->viewport()->width();
    double y = kGap;
    for (const auto& row : rows_) {
        row->place(y, width, zoom_, devicePixelRatioF());
        y = row->bottom() + kGap;
    }
    view_->setSceneRect(0, 0, width, y);
}

bool ChatWindow::updateRows()
{
    const double screen = view_->viewport()->height();
    const double top = scrollBar_->value();
    bool hasBuilt = false;
    for (const auto& row : rows_) {
        const double distance = std::max(row->top() - top - screen, top - row->bottom());
        if (distance > kFar * screen) {
            row->release();
        } else if (distance < kNear * screen && !row->isBuilt()) {
            build(*row);
            hasBuilt = true;
        }
    }
    return hasBuilt;
}

void ChatWindow::build(MessageRow& row)
{
    row.build(*view_->scene(), *this);
    row.highlight(words_);
}

MessageRow& ChatWindow::rowAt(double y) const
{
    const auto isBelow = [](double place, const auto& row) { return place < row->top(); };
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
