#pragma once

#include <QCryptographicHash>
#include <QJsonDocument>
#include <QJsonObject>
#include <QUrl>

#include <sodium.h>

/// Both halves of a new key, which tells and signs releases as the makers do.
struct ReleaseSigner
{
    ReleaseSigner()
    {
        if (sodium_init() < 0 || crypto_sign_keypair(bytes(m_public), bytes(m_secret)) != 0)
            qFatal("no key");
    }

    QByteArray publicHalf() const { return m_public.toBase64(); }

    QString sign(const QByteArray &message) const
    {
        QByteArray signature(crypto_sign_BYTES, '\0');
        crypto_sign_detached(bytes(signature), nullptr,
                             reinterpret_cast<const unsigned char *>(message.data()),
                             static_cast<unsigned long long>(message.size()),
                             reinterpret_cast<const unsigned char *>(m_secret.data()));
        return QString::fromLatin1(signature.toBase64());
    }

    QJsonObject entry(const QString &version, const QUrl &address, const QByteArray &package) const
    {
        const QByteArray hash = QCryptographicHash::hash(package, QCryptographicHash::Sha256);
        const QJsonObject notes{{QStringLiteral("en"), QStringLiteral("New in ") + version}};
        return {{QStringLiteral("version"), version},
                // The first day of the fake clock.
                {QStringLiteral("issued"), QStringLiteral("2027-01-15T08:00:00Z")},
                {QStringLiteral("expires"), QStringLiteral("2027-04-15T08:00:00Z")},
                {QStringLiteral("notes"), notes},
                {QStringLiteral("package"), address.toString()},
                {QStringLiteral("size"), package.size()},
                {QStringLiteral("sha256"), QString::fromLatin1(hash.toHex())}};
    }

    /// With what replaced the key that a copy knows, if it was replaced.
    QByteArray feed(const QJsonObject &entry, const QJsonObject &replacement = {}) const
    {
        const QByteArray text = json(entry);
        QJsonObject feed = replacement;
        feed[QStringLiteral("entry")] = QString::fromLatin1(text.toBase64());
        feed[QStringLiteral("signature")] = sign(text);
        return json(feed);
    }

    /// By the owner of the offline key.
    QJsonObject replacement(const QJsonValue &number, const QByteArray &key) const
    {
        const QByteArray text =
            json({{QStringLiteral("number"), number}, {QStringLiteral("key"), QString::fromLatin1(key)}});
        return {{QStringLiteral("replacement"), QString::fromLatin1(text.toBase64())},
                {QStringLiteral("replacementSignature"), sign(text)}};
    }

    static QByteArray json(const QJsonObject &object)
    {
        return QJsonDocument(object).toJson(QJsonDocument::Compact);
    }

private:
    static unsigned char *bytes(QByteArray &data) { return reinterpret_cast<unsigned char *>(data.data()); }

    QByteArray m_public{crypto_sign_PUBLICKEYBYTES, '\0'};
    QByteArray m_secret{crypto_sign_SECRETKEYBYTES, '\0'};
};
