#include "TestCertificate.h"

#include <QProcess>
#include <QSslCertificate>

#include <gtest/gtest.h>

namespace quillon {

using namespace Qt::StringLiterals;

TestCertificate::TestCertificate(const QString& host)
{
    QProcess openssl;
    openssl.setProcessChannelMode(QProcess::MergedChannels);
    openssl.start(u"openssl"_s,
                  {u"req"_s, u"-x509"_s, u"-newkey"_s, u"ec"_s, u"-pkeyopt"_s, u"ec_paramgen_curve:prime256v1"_s,
                   u"-nodes"_s, u"-subj"_s, u"/CN=%1"_s.arg(host), u"-addext"_s, u"subjectAltName=DNS:%1"_s.arg(host),
                   u"-days"_s, u"2"_s, u"-keyout"_s, file(), u"-out"_s, file()});
    EXPECT_TRUE(openssl.waitForFinished(-1) && openssl.exitCode() == 0) << openssl.readAll().toStdString();
}

ScopedTrust::ScopedTrust(const TestCertificate& certificate)
    : before_(QSslConfiguration::defaultConfiguration())
{
    auto configuration = before_;
    configuration.setCaCertificates(QSslCertificate::fromPath(certificate.file()));
    QSslConfiguration::setDefaultConfiguration(configuration);
}

ScopedTrust::~ScopedTrust()
{
    QSslConfiguration::setDefaultConfiguration(before_);
}

} // namespace quillon
