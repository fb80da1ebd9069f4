#include "ColorScheme_linux.h"
#include "ContactSheet.h"
#include "LocalizedString.h"
#include "Scenes.h"

#include <QApplication>
#include <QDir>
#include <QProcess>

#include <array>
#include <clocale>
#include <cstdio>

namespace {

using namespace quillon;
using namespace Qt::StringLiterals;

/// How the system is set up when pictures are taken.
struct Setup {
    const char* folder;
    const char* locale;
    const char* screenScale = "1";
    const char* textScale = "1";
};

constexpr std::array setups{
    Setup{"en", "en_US.UTF-8"},
    Setup{"de", "de_DE.UTF-8"},
    Setup{"fr", "fr_FR.UTF-8"},
    Setup{"es", "es_ES.UTF-8"},
    Setup{"it", "it_IT.UTF-8"},
    Setup{"nl", "nl_NL.UTF-8"},
    Setup{"pt_BR", "pt_BR.UTF-8"},
    Setup{"ja", "ja_JP.UTF-8"},
    Setup{"zh_CN", "zh_CN.UTF-8"},
    Setup{"en-200-percent", "en_US.UTF-8", "2"},
    Setup{"de-200-percent", "de_DE.UTF-8", "2"},
    Setup{"en-large-text", "en_US.UTF-8", "1", "2"},
    Setup{"de-large-text", "de_DE.UTF-8", "1", "2"},
};

constexpr std::array schemes{
    std::pair{ColorSchemePreference::Light, "light"_L1},
    std::pair{ColorSchemePreference::Dark, "dark"_L1},
};

bool fail(const QString& what)
{
    std::fprintf(stderr, "quillon_shots: %s\n", what.toLocal8Bit().constData());
    return false;
}

/// Every scene, light and dark, with the setup that this process has been started in.
bool takeScenes(const QDir& folder, qreal textScale)
{
    installStringTable();
    QFont font = QApplication::font();
    font.setPointSizeF(font.pointSizeF() * textScale);
    QApplication::setFont(font);
    for (const auto& [preference, scheme] : schemes) {
        for (const auto& scene : allScenes()) {
            Stage stage;
            applyColorScheme(preference); // in place of the desktop's, which the stage's item takes
            stage.launch();
            scene.play(stage);
            const QString path = folder.filePath(u"%1-%2.png"_s.arg(scheme, QLatin1StringView(scene.name)));
            const bool written = Stage::picture().save(path);
            Stage::clear();
            if (!written)
                return fail("cannot write "_L1 + path);
        }
    }
    return true;
}

/// In a process of its own: language, scale and the fonts that go with them are settled once, at its start.
bool takeScenesIn(const Setup& setup, const QDir& folder)
{
    auto environment = QProcessEnvironment::systemEnvironment();
    environment.remove(u"LANGUAGE"_s);
    environment.insert(u"LC_ALL"_s, QString::fromLatin1(setup.locale));
    environment.insert(u"QT_SCALE_FACTOR"_s, QString::fromLatin1(setup.screenScale));
    QProcess process;
    process.setProcessEnvironment(environment);
    process.start(QCoreApplication::applicationFilePath(), {folder.path(), QString::fromLatin1(setup.textScale)});
    if (process.waitForFinished(-1) && process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0)
        return true;
    return fail(QString::fromLocal8Bit(process.readAllStandardError()));
}

bool takeAll(const QDir& folder)
{
    for (const auto& setup : setups) {
        const QDir own(folder.filePath(QString::fromLatin1(setup.folder)));
        if (!own.mkpath(u"."_s))
            return fail("cannot make "_L1 + own.path());
        if (!takeScenesIn(setup, own))
            return false;
        for (const auto& [preference, scheme] : schemes) {
            const QString path = folder.filePath(u"sheet-%1-%2.png"_s.arg(QString::fromLatin1(setup.folder), scheme));
            if (!drawContactSheet(own, scheme, path))
                return fail("cannot write "_L1 + path);
        }
    }
    return true;
}

} // namespace

/// usage: quillon_shots FOLDER; a folder for each setup, and all of its pictures in two sheets beside it. With the text
/// scale as a second argument it takes those of the setup that it runs in.
int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" QUILLON_SHOTS_SCREEN);
    QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    QApplication::setApplicationDisplayName(u"Quillon"_s);
    std::setlocale(LC_NUMERIC, "C");
    const QStringList arguments = QCoreApplication::arguments();
    const QDir folder(arguments.value(1));
    if (arguments.size() < 2 || !folder.exists()) {
        fail(u"usage: quillon_shots FOLDER (which must exist)"_s);
        return 2;
    }
    const bool done = arguments.size() == 2 ? takeAll(folder) : takeScenes(folder, arguments[2].toDouble());
    return done ? 0 : 1;
}
