#include "ViewEngine.h"

#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QQmlNetworkAccessManagerFactory>

namespace Kestrune {

namespace {

class Refusal : public QNetworkAccessManager
{
public:
    using QNetworkAccessManager::QNetworkAccessManager;

protected:
    QNetworkReply *createRequest(Operation operation, const QNetworkRequest & /*request*/,
                                 QIODevice *body) override
    {
        return QNetworkAccessManager::createRequest(operation, QNetworkRequest(),
                                                    body); // No protocol: it fails.
    }
};

class Refusals : public QQmlNetworkAccessManagerFactory
{
public:
    QNetworkAccessManager *create(QObject *parent) override { return new Refusal(parent); }
};

} // namespace

ViewEngine::ViewEngine()
{
    static Refusals refusals; // It outlives every engine.
    setNetworkAccessManagerFactory(&refusals);
    setIncubationController(&m_incubation);
}

ViewEngine::~ViewEngine() { setIncubationController(nullptr); }

} // namespace Kestrune
