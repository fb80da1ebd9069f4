#include "Alert.h"
#include "LocalizedString.h"
#include "Scenes.h"
#include "Stage.h"

#include <QAccessible>
#include <QTextEdit>

#include <functional>
#include <gtest/gtest.h>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

void walk(QAccessibleInterface* node, const std::function<void(QAccessibleInterface&)>& visit)
{
    if (!node || node->state().invisible)
        return;
    visit(*node);
    for (int i = 0; i < node->childCount(); ++i)
        walk(node->child(i), visit);
}

/// What can be chosen, filled in or stands in a menu, and every window, has to say what it is.
bool hasToBeNamed(const QAccessibleInterface& node)
{
    const auto* widget = qobject_cast<const QWidget*>(node.object());
    return node.state().focusable || node.role() == QAccessible::MenuItem || (widget && widget->isWindow());
}

/// On Linux the name of a combo box is what is chosen in it, and its label a relation.
bool isNamed(const QAccessibleInterface& node)
{
    const auto role = node.role();
    if (role == QAccessible::ComboBox && node.relations(QAccessible::Label).isEmpty())
        return false;
    return !node.text(QAccessible::Name).trimmed().isEmpty() && role != QAccessible::NoRole &&
           role != QAccessible::Client;
}

} // namespace

/// Each scene that the program can show, as assistive technology finds it.
class EveryScene : public testing::TestWithParam<Scene> {
protected:
    EveryScene()
    {
        QAccessible::setActive(true); // as once a screen reader has been heard of
        stage_.launch();
        GetParam().play(stage_);
    }
    ~EveryScene() override { Stage::clear(); }

    Stage stage_;
};

TEST_P(EveryScene, NamesWhatCanBeReachedAndReadsItsAlertsOut)
{
    std::string unnamed;
    const auto windows = Stage::windows();
    for (QWidget* window : windows) {
        QStringList read;
        auto* root = QAccessible::queryAccessibleInterface(window);
        walk(root, [&](const QAccessibleInterface& node) {
            if (hasToBeNamed(node) && !isNamed(node))
                unnamed += node.object()->objectName().toStdString() + " of role " + std::to_string(node.role()) + '\n';
            if (node.role() == QAccessible::StaticText)
                read += node.text(QAccessible::Name);
        });
        const auto* alert = window->findChild<Alert*>();
        EXPECT_EQ(root->role() == QAccessible::AlertMessage, alert != nullptr);
        for (const auto* paragraph : alert ? alert->findChildren<QTextEdit*>() : QList<QTextEdit*>())
            EXPECT_TRUE(read.contains(paragraph->toPlainText()));
    }
    EXPECT_EQ(unnamed, "");
}

INSTANTIATE_TEST_SUITE_P(Scenes, EveryScene, testing::ValuesIn(allScenes().begin(), allScenes().end()),
                         [](const testing::TestParamInfo<Scene>& scene) {
                             return QString::fromLatin1(scene.param.name).remove(u'-').toStdString();
                         });

} // namespace quillon
