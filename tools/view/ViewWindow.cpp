#include "view/ViewWindow.h"

#include "CardPainter.h"
#include "OutputFile.h"
#include "view/Attempt.h"
#include "view/CardEditor.h"
#include "view/CardView.h"
#include "view/EventPane.h"
#include "view/FolderList.h"
#include "view/ItemDetails.h"
#include "view/ItemTree.h"
#include "view/MessageBar.h"
#include "view/ProblemList.h"
#include "view/SettingsPanel.h"
#include "view/TextPositions.h"
#include "view/ViewMenus.h"

#include <QApplication>
#include <QClipboard>
#include <QCloseEvent>
#include <QDockWidget>
#include <QFileDialog>
#include <QFileInfo>
#include <QLabel>
#include <QScrollArea>
#include <QSettings>
#include <QSplitter>
#include <QStatusBar>
#include <QTextDocument>
#include <QVBoxLayout>

#include <algorithm>

namespace plix::tool {
namespace {

constexpr QSize kFirstSize(1280, 800);
constexpr int kBottomHeight = 150;
const QList<int> kSideWidths {160, 330};
const QList<int> kCentralWidths {430, 350};
// Device pixels per logical pixel of exported pictures, as of "plix render".
constexpr double kPictureScale = 2;

const QString kGeometry = QStringLiteral("window/geometry");
const QString kState = QStringLiteral("window/state");
const QString kSplitter = QStringLiteral("window/splitter");

// A label that quotes texts, which may look like HTML.
QLabel* plainLabel()
{
    auto* const label = new QLabel;
    label->setTextFormat(Qt::PlainText);
    return label;
}

} // namespace

ViewWindow::ViewWindow(const ViewOptions& options, QSettings& store, const PreviewDelays& delays)
    : store_(store)
    , preview_(pictures_, events_, fonts_, delays)
    , editor_(new CardEditor)
    , view_(new CardView)
    , settings_(new SettingsPanel(pictures_.hasNetwork()))
    , items_(new ItemTree)
    , details_(new ItemDetails)
    , problems_(new ProblemList)
    , eventPane_(new EventPane)
    , folder_(new FolderList)
    , fileBar_(new MessageBar)
    , cardBar_(new MessageBar)
    , files_(*this, *editor_, *folder_, *fileBar_)
    , sizeLabel_(plainLabel())
    , placeLabel_(plainLabel())
    , problemLabel_(plainLabel())
{
    setObjectName(QStringLiteral("ViewWindow"));
    resize(kFirstSize);
    setCentralWidget(centralPane());
    addPanes();
    addStatusLabels();
    ViewMenus(*this).add();
    connectCard();
    connectEditor();
    connectItems();
    connectEvents();
    connectFiles();
    restore(store);
    settings_->setSettings(loadSettings(store, options.card));
    files_.open(options.input);
}

ViewWindow::~ViewWindow()
{
    // The item of the card belongs to the preview.
    view_->setCard(nullptr);
}

QWidget* ViewWindow::centralPane()
{
    auto* const card = new QWidget;
    auto* const column = new QVBoxLayout(card);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(cardBar_);
    column->addWidget(view_, 1);
    auto* const splitter = new QSplitter;
    splitter->addWidget(textPane());
    splitter->addWidget(card);
    splitter->setChildrenCollapsible(false);
    splitter->setSizes(kCentralWidths);
    splitter->setStretchFactor(0, 1);
    return splitter;
}

QWidget* ViewWindow::textPane()
{
    auto* const pane = new QWidget;
    auto* const column = new QVBoxLayout(pane);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(fileBar_);
    column->addWidget(editor_, 1);
    return pane;
}

void ViewWindow::addPanes()
{
    auto* const controls = new QScrollArea;
    controls->setWidget(settings_);
    controls->setWidgetResizable(true);
    controls->setFrameShape(QFrame::NoFrame);
    auto* const itemsAndDetails = new QSplitter(Qt::Vertical);
    itemsAndDetails->addWidget(items_);
    itemsAndDetails->addWidget(details_);

    addPane(Qt::LeftDockWidgetArea, QStringLiteral("Folder"), folder_);
    QDockWidget* const tree =
        addPane(Qt::RightDockWidgetArea, QStringLiteral("Items"), itemsAndDetails);
    tabifyDockWidget(tree, addPane(Qt::RightDockWidgetArea, QStringLiteral("Settings"), controls));
    tree->raise();
    QDockWidget* const findings =
        addPane(Qt::BottomDockWidgetArea, QStringLiteral("Problems"), problems_);
    eventDock_ = addPane(Qt::BottomDockWidgetArea, QStringLiteral("Events"), eventPane_);
    tabifyDockWidget(findings, eventDock_);
    findings->raise();
    resizeDocks({panes_.first(), tree}, kSideWidths, Qt::Horizontal);
    resizeDocks({findings}, {kBottomHeight}, Qt::Vertical);
}

QDockWidget* ViewWindow::addPane(Qt::DockWidgetArea area, const QString& title, QWidget* content)
{
    auto* const pane = new QDockWidget(title);
    pane->setObjectName(title);
    pane->setWidget(content);
    addDockWidget(area, pane);
    panes_.append(pane);
    return pane;
}

void ViewWindow::addStatusLabels()
{
    for (QLabel* label : {problemLabel_, sizeLabel_, placeLabel_}) {
        label->setContentsMargins(8, 0, 8, 0);
        statusBar()->addPermanentWidget(label);
    }
}

void ViewWindow::connectCard()
{
    connect(&preview_, &CardPreview::building, eventPane_, &EventPane::clearBuild);
    connect(&preview_, &CardPreview::cardChanged, this, &ViewWindow::updateCard);
    connect(&preview_, &CardPreview::checked, this, &ViewWindow::updateProblems);
    connect(&pictures_, &PictureSource::arrived, view_->viewport(), qOverload<>(&QWidget::update));
    connect(view_, &CardView::scaled, this, &ViewWindow::updatePixelRatio);
    connect(settings_, &SettingsPanel::changed, this, &ViewWindow::applySettings);
}

void ViewWindow::connectEditor()
{
    connect(editor_, &CardEditor::textChanged, this, [this] { preview_.setText(editor_->json()); });
    connect(editor_, &CardEditor::completionDescribed, this,
            [this](const QString& text) { statusBar()->showMessage(text); });
    connect(editor_, &CardEditor::cursorPositionChanged, this, [this] {
        const QTextCursor cursor = editor_->textCursor();
        placeLabel_->setText(QStringLiteral("Line %1, column %2")
                                 .arg(cursor.blockNumber() + 1)
                                 .arg(cursor.positionInBlock() + 1));
        if (preview_.isCurrent() && editor_->hasFocus())
            selectItemAtCursor();
    });
    connect(editor_->document(), &QTextDocument::modificationChanged, this,
            &QWidget::setWindowModified);
    connect(problems_, &ProblemList::picked, this, [this](int index) {
        editor_->goToFinding(static_cast<std::size_t>(index));
        editor_->setFocus();
    });
}

void ViewWindow::connectItems()
{
    connect(view_, &CardView::hovered, this, [this](QGraphicsObject* item) {
        items_->mark(item);
        outline(item);
    });
    connect(view_, &CardView::picked, this, [this](QGraphicsObject* item) {
        items_->select(item);
        goToText(items_->selected());
    });
    connect(items_, &ItemTree::hovered, this, &ViewWindow::outline);
    connect(items_, &ItemTree::picked, this, &ViewWindow::goToText);
}

void ViewWindow::connectEvents()
{
    connect(&events_, &CardEvents::clicked, eventPane_, &EventPane::addClick);
    connect(&events_, &CardEvents::mentioned, eventPane_,
            [this](qint64 userNo) { eventPane_->addMention(QStringLiteral("User"), userNo); });
    connect(&events_, &CardEvents::botMentioned, eventPane_,
            [this](qint64 userNo) { eventPane_->addMention(QStringLiteral("Bot"), userNo); });
    connect(&events_, &CardEvents::logged, eventPane_, &EventPane::addLogLine);
    connect(&pictures_, &PictureSource::reported, eventPane_, &EventPane::setPicture);
    const auto showEvents = [this] { eventDock_->raise(); };
    connect(&events_, &CardEvents::clicked, this, showEvents);
    connect(&events_, &CardEvents::mentioned, this, showEvents);
    connect(&events_, &CardEvents::botMentioned, this, showEvents);
}

void ViewWindow::connectFiles()
{
    connect(&files_, &ViewFiles::replaced, &preview_, &CardPreview::refresh);
    connect(&files_, &ViewFiles::pathChanged, this, &ViewWindow::updateTitle);
    connect(&files_, &ViewFiles::told, statusBar(),
            [this](const QString& text) { statusBar()->showMessage(text); });
}

// ----- The card

void ViewWindow::updateCard()
{
    view_->setCard(preview_.card());
    items_->setItems(preview_.card(), preview_.items());
    const QSizeF size = preview_.card()->boundingRect().size();
    sizeLabel_->setText(QStringLiteral("%1 × %2").arg(size.width()).arg(size.height()));
    selectItemAtCursor();
}

void ViewWindow::updateProblems()
{
    const Findings& findings = preview_.findings();
    problems_->setFindings(findings);
    editor_->setFindings(preview_.text(), findings);
    const auto isError = [](const Finding& finding) {
        return description(finding.rule).severity == Severity::Error;
    };
    const auto errors = std::count_if(findings.begin(), findings.end(), isError);
    problemLabel_->setText(QStringLiteral("Errors: %1, warnings: %2")
                               .arg(errors)
                               .arg(static_cast<int>(findings.size()) - errors));
    const QString& failure = preview_.failure();
    cardBar_->setText(failure.isEmpty() ? QString()
                          : preview_.card()
                          ? QStringLiteral("This is the last good card: %1").arg(failure)
                          : QStringLiteral("There is no card: %1").arg(failure));
}

void ViewWindow::applySettings()
{
    const ViewSettings settings = settings_->settings();
    preview_.setSettings(settings);
    view_->setDark(settings.isDark);
    view_->setWindowWidth(settings.windowWidth);
}

void ViewWindow::updatePixelRatio(double scale)
{
    const std::optional<float> chosen = settings_->settings().card.dpi;
    const double ratio = chosen ? static_cast<double>(*chosen) : devicePixelRatioF();
    preview_.setPixelRatio(ratio * scale);
}

// ----- Items and the text

void ViewWindow::outline(QGraphicsObject* item)
{
    const ShownItem* const selected = items_->selected();
    view_->setOutlined(item || !selected ? item : selected->object);
}

void ViewWindow::showItem(const ShownItem* item)
{
    details_->show(item, preview_.text());
    outline(nullptr);
}

void ViewWindow::selectItemAtCursor()
{
    const TextPositions positions(preview_.text());
    items_->selectByte(positions.toByte(editor_->textCursor().position()));
    showItem(items_->selected());
}

void ViewWindow::goToText(const ShownItem* item)
{
    showItem(item);
    if (!item || !preview_.isCurrent())
        return;
    const TextPositions positions(preview_.text());
    const TextRange& range = item->source.node.range;
    editor_->selectRange(positions.toCharacter(range.begin), positions.toCharacter(range.end));
}

void ViewWindow::goToProblem(bool forward)
{
    problems_->mark(editor_->goToNextFinding(forward));
    editor_->setFocus();
}

// ----- The window

void ViewWindow::updateTitle()
{
    const QString name =
        files_.path().isEmpty() ? QStringLiteral("New card") : QFileInfo(files_.path()).fileName();
    setWindowTitle(name + QStringLiteral("[*] – Plix"));
}

void ViewWindow::closeEvent(QCloseEvent* event)
{
    event->setAccepted(files_.mayLeave());
    if (event->isAccepted())
        remember();
}

// ----- Pictures and texts

// The card in its own size, also while the window shows it in another one.
QImage ViewWindow::picture()
{
    QGraphicsObject* const card = view_->card();
    if (!card)
        return {};
    const double scale = card->scale();
    card->setScale(1);
    preview_.setPixelRatio(kPictureScale);
    QImage image = paintCard(*card->scene(), *card, kPictureScale).image;
    card->setScale(scale);
    updatePixelRatio(scale);
    return image;
}

void ViewWindow::copyPicture()
{
    QApplication::clipboard()->setImage(picture());
    statusBar()->showMessage(QStringLiteral("Copied the picture"));
}

void ViewWindow::copyText()
{
    if (view_->card())
        QApplication::clipboard()->setText(view_->card()->property("plainText").toString());
}

bool ViewWindow::exportPicture(const QString& path)
{
    return attempt(*this, [&] {
        writePng(path, picture());
        statusBar()->showMessage(QStringLiteral("Exported"));
    });
}

void ViewWindow::askForPicture()
{
    const QFileInfo file(files_.path().isEmpty() ? QStringLiteral("card") : files_.path());
    const QString path = QFileDialog::getSaveFileName(
        this, QStringLiteral("Export the picture"),
        file.dir().filePath(file.completeBaseName() + QStringLiteral(".png")),
        QStringLiteral("Pictures (*.png)"));
    if (!path.isEmpty())
        exportPicture(path);
}

void ViewWindow::clearEvents()
{
    eventPane_->clearAll();
}

// ----- What is remembered

void ViewWindow::restore(const QSettings& store)
{
    restoreGeometry(store.value(kGeometry).toByteArray());
    restoreState(store.value(kState).toByteArray());
    const QByteArray sizes = store.value(kSplitter).toByteArray();
    if (!sizes.isEmpty())
        static_cast<QSplitter*>(centralWidget())->restoreState(sizes);
}

void ViewWindow::remember()
{
    store_.setValue(kGeometry, saveGeometry());
    store_.setValue(kState, saveState());
    store_.setValue(kSplitter, static_cast<QSplitter*>(centralWidget())->saveState());
    saveSettings(store_, settings_->settings());
}

} // namespace plix::tool
