// Read-only and editable items: events, the text control and ownership.
#include "Ink.h"

#include <kestro_control/TextItem.h>

#include <gtest/gtest.h>

#include <QApplication>
#include <QGraphicsLinearLayout>
#include <QGraphicsScene>
#include <QGraphicsSceneContextMenuEvent>
#include <QGraphicsSceneHoverEvent>
#include <QGraphicsSceneMouseEvent>
#include <QGraphicsWidget>
#include <QKeyEvent>
#include <QTextDocument>

#include <memory>

namespace {

const QString kText = QStringLiteral("some text\nand more");

bool hasTextControl(const TextItem& item)
{
    for (const QObject* child : item.children()) {
        if (child->inherits("QWidgetTextControl"))
            return true;
    }
    return false;
}

// Lets tests call the handlers as subclasses do.
class OpenTextItem : public TextItem {
public:
    using TextItem::contextMenuEvent;
    using TextItem::hoverEnterEvent;
    using TextItem::hoverLeaveEvent;
    using TextItem::hoverMoveEvent;
    using TextItem::keyPressEvent;
    using TextItem::keyReleaseEvent;
    using TextItem::mouseDoubleClickEvent;
    using TextItem::mouseMoveEvent;
    using TextItem::mousePressEvent;
    using TextItem::mouseReleaseEvent;
};

template <class Event> bool accepts(TextItem& item, void (TextItem::*handler)(Event*), Event& event)
{
    event.accept();
    (item.*handler)(&event);
    return event.isAccepted();
}

void type(QGraphicsScene& scene, TextItem& item, char key)
{
    QKeyEvent press(QEvent::KeyPress, 0, Qt::NoModifier, QString(QLatin1Char(key)));
    scene.sendEvent(&item, &press);
}

class SinglePressCounter : public QGraphicsRectItem {
public:
    using QGraphicsRectItem::QGraphicsRectItem;

    int presses = 0;

private:
    void mousePressEvent(QGraphicsSceneMouseEvent*) override { ++presses; }
};

TEST(TextItemReadOnly, IsTheInitialState)
{
    EXPECT_TRUE(TextItem().IsReadOnly());
}

TEST(TextItemReadOnly, NeverCreatesATextControl)
{
    QGraphicsScene scene;
    OpenTextItem item;
    scene.addItem(&item);
    item.InsertRichText(kText, true);
    item.SetFixedItemWidth(50);
    item.SetElide(true);
    item.SetMaxLineCount(1);
    item.SetWrapMode(QTextOption::WrapAnywhere);
    item.setFont(QFont(QStringLiteral("DejaVu Sans")));
    item.setDefaultTextColor(Qt::red);
    item.setTextWidth(60);
    item.adjustSize();
    item.textCursor();
    item.toPlainText();
    item.defaultTextColor();
    item.ShownLineCount();
    item.shape();
    const Ink painted(item);
    type(scene, item, 'x');
    QEvent focus(QEvent::ShortcutOverride);
    scene.sendEvent(&item, &focus);
    item.setPlainText(kText);
    item.ClearText();
    EXPECT_FALSE(hasTextControl(item));

    item.SetReadOnly(false);
    EXPECT_TRUE(hasTextControl(item));
}

TEST(TextItemReadOnly, AcceptsNoMouseHoverOrKeyEvent)
{
    OpenTextItem item;
    item.InsertRichText(kText, true);
    QGraphicsSceneMouseEvent mouse(QEvent::GraphicsSceneMousePress);
    mouse.setButton(Qt::LeftButton);
    mouse.setButtons(Qt::LeftButton);
    QGraphicsSceneContextMenuEvent menu(QEvent::GraphicsSceneContextMenu);
    QGraphicsSceneHoverEvent hover(QEvent::GraphicsSceneHoverMove);
    QKeyEvent key(QEvent::KeyPress, Qt::Key_A, Qt::NoModifier, QStringLiteral("a"));

    EXPECT_FALSE(accepts(item, &OpenTextItem::mousePressEvent, mouse));
    EXPECT_FALSE(accepts(item, &OpenTextItem::mouseMoveEvent, mouse));
    EXPECT_FALSE(accepts(item, &OpenTextItem::mouseReleaseEvent, mouse));
    EXPECT_FALSE(accepts(item, &OpenTextItem::mouseDoubleClickEvent, mouse));
    EXPECT_FALSE(accepts(item, &OpenTextItem::contextMenuEvent, menu));
    EXPECT_FALSE(accepts(item, &OpenTextItem::hoverEnterEvent, hover));
    EXPECT_FALSE(accepts(item, &OpenTextItem::hoverMoveEvent, hover));
    EXPECT_FALSE(accepts(item, &OpenTextItem::hoverLeaveEvent, hover));
    EXPECT_FALSE(accepts(item, &OpenTextItem::keyPressEvent, key));
    EXPECT_FALSE(accepts(item, &OpenTextItem::keyReleaseEvent, key));
    EXPECT_FALSE(item.acceptDrops());
    EXPECT_FALSE(item.acceptHoverEvents());
    EXPECT_EQ(item.toPlainText(), kText);
}

TEST(TextItemReadOnly, LeavesClicksToTheItemBelow)
{
    QGraphicsScene scene;
    SinglePressCounter below(0, 0, 200, 200);
    scene.addItem(&below);
    TextItem item;
    item.InsertRichText(kText, true);
    scene.addItem(&item);

    QGraphicsSceneMouseEvent press(QEvent::GraphicsSceneMousePress);
    press.setScenePos(item.boundingRect().center());
    press.setButton(Qt::LeftButton);
    press.setButtons(Qt::LeftButton);
    QApplication::sendEvent(&scene, &press);
    EXPECT_EQ(below.presses, 1);
}

TEST(TextItemEditable, InsertsWhatTheUserTypes)
{
    QGraphicsScene scene;
    TextItem item;
    scene.addItem(&item);
    item.InsertRichText(kText, true);
    item.SetReadOnly(false);
    EXPECT_FALSE(item.IsReadOnly());
    type(scene, item, 'X');
    EXPECT_EQ(item.toPlainText(), QStringLiteral("X") + kText);
    EXPECT_EQ(item.property("plainText").toString(), QStringLiteral("X") + kText);
    EXPECT_EQ(item.textCursor().position(), 1);

    item.SetReadOnly(true);
    type(scene, item, 'Y');
    EXPECT_EQ(item.toPlainText(), QStringLiteral("X") + kText);
}

TEST(TextItemEditable, ShowsAllOfTheText)
{
    TextItem item;
    item.InsertRichText(kText, true);
    item.setDefaultTextColor(QColor(200, 0, 0));
    QFont font = item.font();
    font.setPixelSize(60);
    item.setFont(font);
    item.SetElide(true);
    item.SetMaxLineCount(1);
    const QRectF limited = item.boundingRect();

    item.SetReadOnly(false);
    EXPECT_EQ(item.ShownLineCount(), 2);
    EXPECT_FALSE(item.IsElided());
    EXPECT_GT(item.boundingRect().height(), 1.5 * limited.height());
    const Ink ink(item);
    EXPECT_GT(ink.rect().height(), 1.5 * limited.height());
    EXPECT_TRUE(ink.has(QColor(200, 0, 0)));

    item.SetReadOnly(true);
    EXPECT_EQ(item.boundingRect(), limited);
    EXPECT_LT(Ink(item).rect().height(), limited.height());
}

TEST(TextItemEditable, KeepsTheDocument)
{
    TextItem item;
    item.InsertRichText(kText, true);
    QTextDocument* const document = item.document();
    for (int i = 0; i < 3; ++i) {
        item.SetReadOnly(false);
        EXPECT_EQ(item.document(), document);
        item.SetReadOnly(true);
        EXPECT_EQ(item.document(), document);
    }
    EXPECT_EQ(item.toPlainText(), kText);
    item.InsertRichText(QStringLiteral("!"), true);
    EXPECT_EQ(item.toPlainText(), kText + QLatin1Char('!'));
}

TEST(TextItemBase, HasADocumentOfItsOwn)
{
    TextItem item;
    item.InsertRichText(kText, true);
    QGraphicsTextItem& base = item;
    EXPECT_NE(base.document(), item.document());
    EXPECT_EQ(base.toPlainText(), QString());
    EXPECT_EQ(item.toPlainText(), kText);
    EXPECT_EQ(base.boundingRect(), item.boundingRect());
}

TEST(TextItemDeletion, WorksInEveryState)
{
    for (int changes = 0; changes < 4; ++changes) {
        QGraphicsScene scene;
        auto* const item = new TextItem;
        scene.addItem(item);
        item->InsertRichText(kText, true);
        for (int i = 0; i < changes; ++i)
            item->SetReadOnly(!item->IsReadOnly());
        item->boundingRect();
        bool documentGone = false;
        QObject::connect(item->document(), &QObject::destroyed, [&] { documentGone = true; });
        delete item;
        EXPECT_TRUE(documentGone);
    }
}

TEST(TextItemDeletion, MakesTextCursorsNull)
{
    for (bool readOnly : {true, false}) {
        auto item = std::make_unique<TextItem>();
        item->InsertRichText(kText, true);
        item->SetReadOnly(readOnly);
        QTextCursor cursor = item->textCursor();
        item.reset();
        EXPECT_TRUE(cursor.isNull());
    }
}

TEST(TextItemDeletion, WorksBeforeAndAfterThatOfTheLayout)
{
    for (bool layoutFirst : {true, false}) {
        QGraphicsScene scene;
        auto* const panel = new QGraphicsWidget;
        scene.addItem(panel);
        auto* const layout = new QGraphicsLinearLayout;
        panel->setLayout(layout);
        auto* const item = new TextItem(panel, layout);
        layout->addItem(item);
        item->InsertRichText(kText, true);
        if (layoutFirst)
            panel->setLayout(nullptr);
        else
            delete item;
        delete panel;
        EXPECT_TRUE(scene.items().isEmpty());
    }
}

TEST(TextItemDeletion, HappensWithThatOfTheParent)
{
    auto* const parent = new QGraphicsRectItem;
    auto* const item = new TextItem(parent);
    bool gone = false;
    QObject::connect(item, &QObject::destroyed, [&gone] { gone = true; });
    delete parent;
    EXPECT_TRUE(gone);
}

} // namespace
