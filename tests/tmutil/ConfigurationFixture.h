#pragma once

#include "Configuration.h"
#include "Failure.h"

#include <QDir>
#include <QFileInfo>
#include <QTemporaryDir>

#include <gtest/gtest.h>
#include <vector>

namespace quillon {

using namespace Qt::StringLiterals;

/// A configuration of its own, with folders that play disks.
class ConfigurationFixture : public testing::Test {
protected:
    QString folder(const QString& name) const
    {
        QDir().mkpath(root_.filePath(name));
        return QFileInfo(root_.filePath(name)).canonicalFilePath();
    }
    Destination set(const QString& name, bool append, bool opens = true)
    {
        return Configuration(folders_).setDestination(folder(name), append, [=](const Destination&) { return opens; });
    }
    std::vector<Destination> destinations() const { return Configuration(folders_).destinations(); }
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

    QTemporaryDir root_;
    Folders folders_{root_.path(), root_.filePath(u"config"_s), root_.filePath(u"state"_s), root_.filePath(u"cache"_s)};
};

} // namespace quillon
