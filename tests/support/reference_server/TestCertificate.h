#pragma once

#include <QSslConfiguration>
#include <QString>
#include <QTemporaryDir>

namespace quillon {

/// A certificate made for the moment, which nobody trusts unless told to.
class TestCertificate {
public:
    explicit TestCertificate(const QString& host);

    /// The certificate and its key, PEM.
    QString file() const { return folder_.filePath(QStringLiteral("certificate.pem")); }

private:
    QTemporaryDir folder_;
};

/// Connections made in this scope trust that certificate and no other.
class ScopedTrust {
public:
    explicit ScopedTrust(const TestCertificate& certificate);
    ScopedTrust(const ScopedTrust&) = delete;
    ScopedTrust& operator=(const ScopedTrust&) = delete;
    ~ScopedTrust();

private:
    const QSslConfiguration before_;
};

} // namespace quillon
