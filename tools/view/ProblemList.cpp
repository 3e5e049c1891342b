#include "view/ProblemList.h"

#include "view/ToolTipText.h"

#include <QHeaderView>
#include <QStyle>

#include <algorithm>

namespace plix::tool {
namespace {

// More than anybody reads.
constexpr std::size_t kMaximumProblems = 500;

QString placeOf(const Finding& finding)
{
    return QStringLiteral("%1:%2").arg(finding.place.line).arg(finding.place.column);
}

} // namespace

ProblemList::ProblemList(QWidget* parent)
    : QTreeWidget(parent)
{
    setHeaderLabels({QStringLiteral("Place"), QStringLiteral("Problem"),
                     QStringLiteral("What to write"), QStringLiteral("Path"),
                     QStringLiteral("Code")});
    setRootIsDecorated(false);
    setUniformRowHeights(true);
    header()->setStretchLastSection(false);
    header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    header()->setSectionResizeMode(1, QHeaderView::Stretch);
    setAccessibleName(QStringLiteral("Problems"));
    const auto pick = [this](QTreeWidgetItem* row) { Q_EMIT picked(indexOfTopLevelItem(row)); };
    connect(this, &QTreeWidget::itemClicked, this, pick);
    connect(this, &QTreeWidget::itemActivated, this, pick);
}

void ProblemList::setFindings(const Findings& findings)
{
    clear();
    const std::size_t count = std::min(findings.size(), kMaximumProblems);
    for (std::size_t i = 0; i < count; ++i) {
        const Finding& finding = findings[i];
        const RuleDescription& rule = description(finding.rule);
        auto* const row = new QTreeWidgetItem(this,
                                              {placeOf(finding), finding.message, finding.mend,
                                               finding.path, QString::fromLatin1(rule.code)});
        const bool isError = rule.severity == Severity::Error;
        row->setIcon(0,
                     style()->standardIcon(isError ? QStyle::SP_MessageBoxCritical
                                                   : QStyle::SP_MessageBoxWarning));
        row->setToolTip(1, toolTipOf(finding.message));
    }
}

void ProblemList::mark(int index)
{
    setCurrentItem(topLevelItem(index));
}

} // namespace plix::tool
