#include "view/MessageBar.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

namespace plix::tool {

MessageBar::MessageBar(QWidget* parent)
    : QFrame(parent)
    , label_(new QLabel)
    , row_(new QHBoxLayout(this))
{
    setFrameShape(QFrame::StyledPanel);
    setAutoFillBackground(true);
    setBackgroundRole(QPalette::ToolTipBase);
    label_->setTextFormat(Qt::PlainText); // it quotes the card
    label_->setForegroundRole(QPalette::ToolTipText);
    label_->setWordWrap(true);
    row_->setContentsMargins(6, 3, 6, 3);
    row_->addWidget(label_, 1);
    hide();
}

void MessageBar::addButton(const QString& text, const std::function<void()>& function)
{
    auto* const button = new QPushButton(text);
    connect(button, &QPushButton::clicked, this, function);
    row_->addWidget(button);
}

void MessageBar::setText(const QString& text)
{
    label_->setText(text);
    setVisible(!text.isEmpty());
}

QString MessageBar::text() const
{
    return label_->text();
}

} // namespace plix::tool
