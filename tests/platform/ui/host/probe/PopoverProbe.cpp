// A program with a popover, and a child of it, on an X11 display or under Wayland. It obeys the words on its standard
// input and answers each with one line of JSON about the popover; it ends with its input.

#include "Popover.h"
#include "X11_linux.h"

#include <QApplication>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QSocketNotifier>
#include <QTest>
#include <QWindow>

#include <cstdio>
#include <iostream>
#include <string>

using namespace Qt::StringLiterals;

namespace {

constexpr QRect anchor(600, 100, 40, 20);

/// Says that the display has a compositor, or none any more.
void setComposited(const QWidget& owner, bool composited)
{
    xcb_connection_t* connection = quillon::x11Connection();
    xcb_set_selection_owner(connection, composited ? static_cast<xcb_window_t>(owner.winId()) : XCB_NONE,
                            quillon::internAtom(connection, "_NET_WM_CM_S0"), XCB_CURRENT_TIME);
    xcb_flush(connection);
}

/// Has the popover's content grow in the middle of the next move of its window.
class GrowthWhileMoving final : public QObject {
public:
    GrowthWhileMoving(quillon::Popover& popover, QWidget& content)
        : QObject(&popover)
        , popover_(popover)
        , content_(content)
    {
        popover.installEventFilter(this);
    }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::Move) {
            watched->removeEventFilter(this);
            content_.setFixedSize(content_.size() * 2);
            popover_.layout()->activate();
        }
        return false;
    }

private:
    quillon::Popover& popover_;
    QWidget& content_;
};

} // namespace

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);

    QWidget backdrop;
    backdrop.setPalette(Qt::white);
    backdrop.setWindowFlags(Qt::FramelessWindowHint);
    backdrop.setGeometry(0, 0, 1280, 800);
    backdrop.show();
    quillon::Popover popover;
    auto* text = new QLineEdit;
    text->setFixedSize(200, 40);
    popover.setContentView(text);
    popover.setBehavior(quillon::PopoverBehavior::Transient);
    quillon::Popover child;
    auto* childButton = new QPushButton; // without a seat Qt has no input method for texts under Wayland
    childButton->setCheckable(true);
    child.setContentView(childButton);

    QSocketNotifier input(fileno(stdin), QSocketNotifier::Read);
    QObject::connect(&input, &QSocketNotifier::activated, &application, [&] {
        std::string word;
        if (!std::getline(std::cin, word)) {
            QApplication::quit();
            return;
        }
        if (word == "show")
            popover.showRelativeTo({.screenRect = anchor}, quillon::RectEdge::MinY);
        else if (word == "grow") {
            new GrowthWhileMoving(popover, *text);
            popover.showRelativeTo({.screenRect = anchor.translated(-50, 50)}, quillon::RectEdge::MinY);
        } else if (word == "child")
            child.showRelativeTo({.view = text}, quillon::RectEdge::MinY);
        else if (word == "key")
            QTest::keyClick(text, Qt::Key_Space); // as a window system does that leaves the keyboard with the parent
        else if (word == "dismiss")
            child.windowHandle()->close();
        else if (word == "close")
            popover.close();
        else if (word == "composited" || word == "plain")
            setComposited(backdrop, word == "composited");
        const QRect content(text->mapToGlobal(QPoint()), text->size());
        const QJsonObject state{{u"shown"_s, popover.isShown()},
                                {u"visible"_s, popover.isVisible()},
                                {u"active"_s, text->hasFocus()},
                                {u"text"_s, text->text()},
                                {u"opacity"_s, popover.windowOpacity()},
                                {u"window"_s, QString::number(popover.winId())},
                                {u"cutOff"_s, !popover.mask().boundingRect().contains(text->geometry())},
                                {u"childPressed"_s, childButton->isChecked()},
                                {u"x"_s, content.x()},
                                {u"y"_s, content.y()}};
        std::cout << QJsonDocument(state).toJson(QJsonDocument::Compact).toStdString() << std::endl;
    });
    return QApplication::exec();
}
