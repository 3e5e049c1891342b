#include "view/ViewWindow.h"

#include "view/CardEditor.h"
#include "view/CardView.h"
#include "view/EventPane.h"
#include "view/ItemTree.h"
#include "view/MessageBar.h"
#include "view/ProblemList.h"
#include "view/SettingsPanel.h"
#include "view/ViewMenus.h"

#include <QCloseEvent>
#include <QFileInfo>
#include <QLabel>
#include <QSettings>
#include <QStatusBar>
#include <QTextDocument>

#include <algorithm>

namespace plix::tool {
namespace {

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
    , widgets_(makeViewWidgets(pictures_.hasNetwork()))
    , panes_(*this, widgets_)
    , selection_(widgets_, preview_)
    , files_(*this, *widgets_.editor, *widgets_.folder, *widgets_.fileBar)
    , export_(*this, *widgets_.view, preview_)
    , sizeLabel_(plainLabel())
    , placeLabel_(plainLabel())
    , problemLabel_(plainLabel())
{
    setObjectName(QStringLiteral("ViewWindow"));
    addStatusLabels();
    ViewMenus(*this).add();
    connectCard();
    connectEditor();
    connectEvents();
    connectFiles();
    panes_.restore(store);
    widgets_.settings->setSettings(loadSettings(store, options.card));
    files_.open(options.input);
}

ViewWindow::~ViewWindow()
{
    // The item of the card belongs to the preview.
    widgets_.view->setCard(nullptr);
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
    connect(&preview_, &CardPreview::building, widgets_.events, &EventPane::clearBuild);
    connect(&preview_, &CardPreview::cardChanged, this, &ViewWindow::updateCard);
    connect(&preview_, &CardPreview::checked, this, &ViewWindow::updateProblems);
    connect(&pictures_, &PictureSource::arrived, widgets_.view->viewport(),
            qOverload<>(&QWidget::update));
    connect(widgets_.view, &CardView::scaled, this, &ViewWindow::updatePixelRatio);
    connect(widgets_.settings, &SettingsPanel::changed, this, &ViewWindow::applySettings);
}

void ViewWindow::connectEditor()
{
    connect(widgets_.editor, &CardEditor::textChanged, this,
            [this] { preview_.setText(widgets_.editor->json()); });
    connect(widgets_.editor, &CardEditor::completionDescribed, this, &ViewWindow::tell);
    connect(widgets_.editor, &CardEditor::cursorPositionChanged, this, [this] {
        const QTextCursor cursor = widgets_.editor->textCursor();
        placeLabel_->setText(QStringLiteral("Line %1, column %2")
                                 .arg(cursor.blockNumber() + 1)
                                 .arg(cursor.positionInBlock() + 1));
    });
    connect(widgets_.editor->document(), &QTextDocument::modificationChanged, this,
            &QWidget::setWindowModified);
    connect(widgets_.problems, &ProblemList::picked, this, [this](int index) {
        widgets_.editor->goToFinding(static_cast<std::size_t>(index));
        widgets_.editor->setFocus();
    });
}

void ViewWindow::connectEvents()
{
    connect(&events_, &CardEvents::clicked, widgets_.events, &EventPane::addClick);
    connect(&events_, &CardEvents::mentioned, widgets_.events,
            [this](qint64 userNo) { widgets_.events->addMention(QStringLiteral("User"), userNo); });
    connect(&events_, &CardEvents::botMentioned, widgets_.events,
            [this](qint64 userNo) { widgets_.events->addMention(QStringLiteral("Bot"), userNo); });
    connect(&events_, &CardEvents::logged, widgets_.events, &EventPane::addLogLine);
    connect(&pictures_, &PictureSource::reported, widgets_.events, &EventPane::setPicture);
    const auto showEvents = [this] { panes_.showEvents(); };
    connect(&events_, &CardEvents::clicked, this, showEvents);
    connect(&events_, &CardEvents::mentioned, this, showEvents);
    connect(&events_, &CardEvents::botMentioned, this, showEvents);
}

void ViewWindow::connectFiles()
{
    connect(&files_, &ViewFiles::replaced, &preview_, &CardPreview::refresh);
    connect(&files_, &ViewFiles::pathChanged, this, &ViewWindow::updateTitle);
    connect(&files_, &ViewFiles::told, this, &ViewWindow::tell);
    connect(&export_, &CardExport::told, this, &ViewWindow::tell);
}

void ViewWindow::updateCard()
{
    widgets_.view->setCard(preview_.card());
    widgets_.items->setItems(preview_.card(), preview_.items());
    const QSizeF size = preview_.card()->boundingRect().size();
    sizeLabel_->setText(QStringLiteral("%1 × %2").arg(size.width()).arg(size.height()));
    selection_.selectAtCursor();
}

void ViewWindow::updateProblems()
{
    const Findings& findings = preview_.findings();
    widgets_.problems->setFindings(findings);
    widgets_.editor->setFindings(preview_.text(), findings);
    const auto isError = [](const Finding& finding) {
        return description(finding.rule).severity == Severity::Error;
    };
    const auto errors = std::count_if(findings.begin(), findings.end(), isError);
    problemLabel_->setText(QStringLiteral("Errors: %1, warnings: %2")
                               .arg(errors)
                               .arg(static_cast<int>(findings.size()) - errors));
    const QString& failure = preview_.failure();
    widgets_.cardBar->setText(failure.isEmpty() ? QString()
                                  : preview_.card()
                                  ? QStringLiteral("This is the last good card: %1").arg(failure)
                                  : QStringLiteral("There is no card: %1").arg(failure));
}

void ViewWindow::applySettings()
{
    const ViewSettings settings = widgets_.settings->settings();
    preview_.setSettings(settings);
    widgets_.view->setDark(settings.isDark);
    widgets_.view->setWindowWidth(settings.windowWidth);
}

void ViewWindow::updatePixelRatio(double scale)
{
    const std::optional<float> chosen = widgets_.settings->settings().card.dpi;
    const double ratio = chosen ? static_cast<double>(*chosen) : devicePixelRatioF();
    preview_.setPixelRatio(ratio * scale);
}

void ViewWindow::goToProblem(bool forward)
{
    widgets_.problems->mark(widgets_.editor->goToNextFinding(forward));
    widgets_.editor->setFocus();
}

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

void ViewWindow::remember()
{
    panes_.remember(store_);
    saveSettings(store_, widgets_.settings->settings());
}

void ViewWindow::tell(const QString& message)
{
    statusBar()->showMessage(message);
}

} // namespace plix::tool
