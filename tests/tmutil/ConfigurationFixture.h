#pragma once

#include "Configuration.h"
#include "Failure.h"
#include "PropertyList.h"

#include <QDir>
#include <QFileInfo>
#include <QTemporaryDir>

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <vector>

namespace quillon {

using namespace Qt::StringLiterals;

/// A configuration of its own, with folders that play disks.
class ConfigurationFixture : public testing::Test {
protected:
    QString path(const QString& name) const { return root_.filePath(name); }
    QString folder(const QString& name) const
    {
        QDir().mkpath(path(name));
        return QFileInfo(path(name)).canonicalFilePath();
    }
    QString file(const QString& name, const QByteArray& contents = {}) const
    {
        QFile file(folder(QFileInfo(name).path()) + u'/' + QFileInfo(name).fileName());
        EXPECT_TRUE(file.open(QIODevice::WriteOnly) && file.write(contents) == contents.size());
        return file.fileName();
    }
    Configuration configuration() const { return Configuration(folders_); }
    Destination set(const QString& name, bool append, bool opens = true) const
    {
        return configuration().setDestination(folder(name), append, [=](const Destination&) { return opens; });
    }
    std::vector<Destination> destinations() const { return configuration().destinations(); }
    static void unplug(const Destination& disk) { QDir(disk.path).rename(u"Quillon.backups"_s, u"away"_s); }

    template<class Call>
    static ExitStatus statusOf(Call call)
    {
        try {
            call();
        } catch (const Failure& failure) {
            EXPECT_FALSE(failure.message().isEmpty());
            return failure.status();
        }
        return ExitStatus::Success;
    }
    template<class Argument>
    ExitStatus attempt(void (Configuration::*change)(const Argument&), const std::type_identity_t<Argument>& what) const
    {
        return statusOf([&] { (configuration().*change)(what); });
    }

    /// The entries of a property list in the old text format, where everything is text.
    static QVariantMap fields(const QString& text)
    {
        return propertylist::parseOldStyle(text.toUtf8()).value_or(QVariant()).toMap();
    }

    static mode_t mode(const QString& path)
    {
        struct stat state {};
        return stat(QFile::encodeName(path).constData(), &state) == 0 ? state.st_mode & ALLPERMS : 0U;
    }

    QTemporaryDir root_;
    Folders folders_{root_.path(), path(u"config"_s), path(u"state"_s), path(u"cache"_s)};
};

} // namespace quillon
