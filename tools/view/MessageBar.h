#pragma once

#include <QFrame>

#include <functional>

class QHBoxLayout;
class QLabel;

namespace plix::tool {

// A line that says something about the card until it is hidden, with buttons.
class MessageBar : public QFrame {
    Q_OBJECT

public:
    explicit MessageBar(QWidget* parent = nullptr);

    void addButton(const QString& text, const std::function<void()>& function);
    // Hides the line if `text` is empty.
    void setText(const QString& text);
    QString text() const;

private:
    QLabel* label_;
    QHBoxLayout* row_;
};

} // namespace plix::tool
