#pragma once

#include <QObject>
#include <QPointer>

class QGraphicsScene;
class QGraphicsView;

namespace kestro {

// Tells clients which item of a view has got the keyboard focus.
class FocusUpdates : public QObject {
    Q_OBJECT

public:
    // The view owns it.
    explicit FocusUpdates(QGraphicsView& view);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private Q_SLOTS:
    void Tell();

private:
    // Null while the view is being deleted.
    QGraphicsView* View() const;
    void FollowScene();
    void TellLater();

    QPointer<QGraphicsScene> scene_;
    bool isPending_ = false;
};

} // namespace kestro
