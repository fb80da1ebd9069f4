#include "Alert.h"
#include "LocalizedString.h"
#include "Scenes.h"
#include "Stage.h"

#include <QAccessible>
#include <QTextEdit>

#include <algorithm>
#include <functional>
#include <gmock/gmock.h>

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
bool hasLabel(const QAccessibleInterface& node)
{
    const auto labels = node.relations(QAccessible::Label);
    return std::ranges::any_of(
        labels, [](const auto& label) { return !label.first->text(QAccessible::Name).trimmed().isEmpty(); });
}

bool isNamed(const QAccessibleInterface& node)
{
    if (node.role() == QAccessible::ComboBox && !hasLabel(node))
        return false;
    const auto role = node.role();
    return !node.text(QAccessible::Name).trimmed().isEmpty() && role != QAccessible::NoRole &&
           role != QAccessible::Client;
}

std::string describe(const QAccessibleInterface& node)
{
    const QObject* object = node.object();
    return (object ? object->metaObject()->className() + (u' ' + object->objectName()).toStdString() : "") + " role " +
           std::to_string(node.role()) + " name " + node.text(QAccessible::Name).toStdString() + '\n';
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

TEST_P(EveryScene, NamesWhatCanBeReached)
{
    std::string unnamed;
    const auto windows = Stage::windows();
    for (QWidget* window : windows)
        walk(QAccessible::queryAccessibleInterface(window), [&unnamed](const QAccessibleInterface& node) {
            if (hasToBeNamed(node) && !isNamed(node))
                unnamed += describe(node);
        });
    EXPECT_EQ(unnamed, "");
}

TEST_P(EveryScene, ReadsItsAlertsOut)
{
    const auto windows = Stage::windows();
    for (QWidget* window : windows) {
        const auto* alert = window->findChild<Alert*>();
        if (!alert)
            continue;
        auto* root = QAccessible::queryAccessibleInterface(window);
        EXPECT_EQ(root->role(), QAccessible::AlertMessage);
        QStringList read;
        walk(root, [&read](const QAccessibleInterface& node) {
            if (node.role() == QAccessible::StaticText)
                read += node.text(QAccessible::Name);
        });
        const auto paragraphs = alert->findChildren<QTextEdit*>();
        EXPECT_FALSE(paragraphs.isEmpty());
        EXPECT_EQ(root->text(QAccessible::Name), paragraphs.value(0)->toPlainText());
        for (const auto* paragraph : paragraphs)
            EXPECT_THAT(read, testing::Contains(paragraph->toPlainText()));
    }
}

INSTANTIATE_TEST_SUITE_P(Scenes, EveryScene, testing::ValuesIn(allScenes().begin(), allScenes().end()),
                         [](const testing::TestParamInfo<Scene>& scene) {
                             return QString::fromLatin1(scene.param.name).remove(u'-').toStdString();
                         });

} // namespace quillon
