#include "tools/view/ViewFixture.h"

#include <plix/Plix.h>

#include <QtTest>
#include <QtWidgets>

namespace plix::test {

using namespace tool;

namespace {

// What a text or a button says.
QString wordsOf(const QGraphicsObject& item)
{
    return item.property(item.inherits("TextItem") ? "plainText" : "shownLabel").toString();
}

QString withoutMnemonic(QString text)
{
    return text.remove(QLatin1Char('&'));
}

} // namespace

QString cardWith(const QString& components)
{
    return QStringLiteral(R"({"type": "bubble", "body": {"type": "box", "layout": "vertical",
"contents": [%1]}})")
        .arg(components);
}

QString textItem(const QString& text)
{
    return QStringLiteral(R"({"type": "text", "text": "%1", "wrap": true})").arg(text);
}

View::View()
    : store_(
        std::make_unique<QSettings>(path(QStringLiteral("settings.ini")), QSettings::IniFormat))
{
}

View::~View()
{
    window_.reset();
    Plix_SetCurrentLanguage("en");
}

void View::show(const QString& input, const CardOptions& options)
{
    // The delays are for people.
    window_ =
        std::make_unique<ViewWindow>(ViewOptions {input, options}, *store_, PreviewDelays {0, 0});
    window_->show();
    QApplication::setActiveWindow(window_.get());
    ASSERT_TRUE(QTest::qWaitForWindowActive(window_.get()));
    editor().setFocus();
}

void View::showCard(const QString& json, const CardOptions& options)
{
    write(QStringLiteral("card.json"), json.toUtf8());
    show(path(QStringLiteral("card.json")), options);
}

void View::close()
{
    window_->close();
    window_.reset();
}

QWidget& View::control(const QString& label)
{
    for (const QLabel* each : settings().findChildren<QLabel*>()) {
        if (withoutMnemonic(each->text()) == label && each->buddy())
            return *each->buddy();
    }
    for (QCheckBox* each : settings().findChildren<QCheckBox*>()) {
        if (withoutMnemonic(each->text()) == label)
            return *each;
    }
    throw std::logic_error("no such control: " + label.toStdString());
}

QString View::shownText()
{
    const QGraphicsObject* const card = view().card();
    return card ? card->property("plainText").toString() : QString();
}

bool View::waitForText(const QString& text)
{
    return QTest::qWaitFor([&] { return shownText().contains(text); });
}

QGraphicsObject* View::itemOf(const QString& text)
{
    for (QGraphicsItem* item : view().scene()->items()) {
        QGraphicsObject* const object = item->toGraphicsObject();
        if (object && wordsOf(*object).contains(text))
            return object;
    }
    return nullptr;
}

QPoint View::pixelOf(const QGraphicsObject& item)
{
    return view().mapFromScene(item.sceneBoundingRect().center());
}

void View::clickItem(const QString& text, Qt::KeyboardModifiers modifiers)
{
    const QGraphicsObject* const item = itemOf(text);
    ASSERT_NE(item, nullptr) << text.toStdString();
    QTest::mouseClick(view().viewport(), Qt::LeftButton, modifiers, pixelOf(*item));
}

void View::replaceAll(const QString& text)
{
    editor().setFocus();
    editor().selectAll();
    QApplication::clipboard()->setText(text);
    editor().paste();
}

void View::press(Qt::Key key, Qt::KeyboardModifiers modifiers)
{
    QWidget* const list = QApplication::activePopupWidget();
    QTest::keyClick(list ? list : QApplication::focusWidget(), key, modifiers);
}

void View::choose(const QString& entry)
{
    for (QAction* action : window_->findChildren<QAction*>()) {
        if (withoutMnemonic(action->text()) == entry)
            return action->trigger();
    }
    FAIL() << "no entry " << entry.toStdString();
}

QTreeWidgetItem* View::rowOf(QTreeWidget& tree, const QString& text, int column)
{
    const auto rows = tree.findItems(text, Qt::MatchContains | Qt::MatchRecursive, column);
    return rows.value(0);
}

void View::clickRow(QTreeWidget& tree, QTreeWidgetItem& row)
{
    tree.scrollToItem(&row);
    QTest::mouseClick(tree.viewport(), Qt::LeftButton, {}, tree.visualItemRect(&row).center());
}

void View::answerNextQuestion(int standardButton)
{
    // The box runs an event loop, in which this is called.
    QTimer::singleShot(0, window_.get(), [standardButton] {
        auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        ASSERT_NE(box, nullptr);
        box->button(static_cast<QMessageBox::StandardButton>(standardButton))->click();
    });
}

QString View::barText()
{
    for (const QLabel* label : window_->findChildren<QLabel*>()) {
        const bool isInBar = label->parent() && label->parent()->inherits("plix::tool::MessageBar");
        if (isInBar && label->isVisible())
            return label->text();
    }
    return {};
}

void View::write(const QString& name, const QByteArray& bytes) const
{
    QFile file(path(name));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly)) << name.toStdString();
    file.write(bytes);
}

QByteArray View::read(const QString& name) const
{
    QFile file(path(name));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << name.toStdString();
    return file.readAll();
}

} // namespace plix::test
