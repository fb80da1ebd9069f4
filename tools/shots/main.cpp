#include "ColorScheme_linux.h"
#include "LocalizedString.h"
#include "NotificationShots.h"
#include "Scenes.h"

#include <QApplication>
#include <QDir>

#include <clocale>
#include <cstdio>

using namespace quillon;
using namespace Qt::StringLiterals;

/// usage: quillon_shots FOLDER TEXT-SCALE; every scene, light and dark, in the language and scale of the environment.
/// quillon_shots FOLDER TEXT-SCALE SCHEME; notifications, as the desktop of the environment draws them in that scheme.
int main(int argc, char** argv)
{
    const bool onDesktop = argc > 3;
    if (!onDesktop)
        qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" QUILLON_SHOTS_SCREEN);
    QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    QApplication::setApplicationDisplayName(u"Quillon"_s);
    std::setlocale(LC_NUMERIC, "C");
    installStringTable();
    const QStringList arguments = QCoreApplication::arguments();
    QFont font = QApplication::font();
    font.setPointSizeF(font.pointSizeF() * arguments.value(2, u"1"_s).toDouble());
    QApplication::setFont(font);
    if (onDesktop) {
        const QString error = pictureNotifications(arguments[1], arguments[3]);
        if (!error.isEmpty())
            std::fprintf(stderr, "quillon_shots: %s\n", qPrintable(error));
        return error.isEmpty() ? 0 : 1;
    }
    for (const auto& [preference, scheme] :
         {std::pair{ColorSchemePreference::Light, u"light"_s}, {ColorSchemePreference::Dark, u"dark"_s}}) {
        for (const auto& scene : allScenes()) {
            Stage stage;
            applyColorScheme(preference); // in place of the desktop's, which the stage's item takes
            stage.launch();
            scene.play(stage);
            const QString path =
                QDir(arguments.value(1)).filePath(scheme + u'-' + QLatin1StringView(scene.name) + u".png"_s);
            const bool written = Stage::picture().save(path);
            Stage::clear();
            if (!written) {
                std::fprintf(stderr, "quillon_shots: cannot write %s\n", qPrintable(path));
                return 1;
            }
        }
    }
    return 0;
}
