#include "StatusReport.h"

#include "AppState.h"
#include "NotchKit/Tools/Teleprompter/TeleprompterModel.h"
#include "WindowSystems.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace Kestrune {

namespace {

QJsonObject rectangle(const QRectF &rect)
{
    return {{QStringLiteral("x"), rect.x()},
            {QStringLiteral("y"), rect.y()},
            {QStringLiteral("width"), rect.width()},
            {QStringLiteral("height"), rect.height()}};
}

QJsonObject size(const QSizeF &size)
{
    return {{QStringLiteral("width"), size.width()}, {QStringLiteral("height"), size.height()}};
}

QJsonObject describe(const NotchController::Notch &notch)
{
    const NotchScreenModel &model = *notch.model;
    const NotchGeometry geometry = model.geometry();
    return {{QStringLiteral("name"), notch.screen.name},
            {QStringLiteral("frame"), rectangle(geometry.screenFrame)},
            {QStringLiteral("notchSize"), size(geometry.notchSize)},
            {QStringLiteral("hardware"), geometry.hasHardwareNotch},
            {QStringLiteral("expanded"), model.expanded()},
            {QStringLiteral("selected"), rawValue(model.selected())},
            {QStringLiteral("pinned"), model.pinned()},
            {QStringLiteral("pointerEntered"), model.pointerEntered()}};
}

/// How far the teleprompter is; numbers that are not known yet are null.
QJsonObject describe(const TeleprompterModel &prompter)
{
    const auto position = prompter.position();
    const int left = prompter.secondsLeft();
    return {{QStringLiteral("playing"), prompter.playing()},
            {QStringLiteral("position"), position ? QJsonValue(*position * 100) : QJsonValue()},
            {QStringLiteral("secondsLeft"), left >= 0 ? QJsonValue(left) : QJsonValue()}};
}

} // namespace

QByteArray statusReport(AppState &app, const WindowSystemChoice &windows)
{
    const NotchServices &services = app.services();
    QJsonArray displays;
    for (const auto &notch : app.controller().notches())
        displays.append(describe(notch));
    const auto visible = services.visibleTool();
    const QJsonObject report{
        {QStringLiteral("running"), app.controller().isRunning()},
        {QStringLiteral("yielding"), app.yieldingToFennivar()},
        {QStringLiteral("visibleTool"), visible ? QJsonValue(rawValue(*visible)) : QJsonValue()},
        {QStringLiteral("anyExpanded"), services.anyExpanded()},
        {QStringLiteral("hasActivity"), services.hasActivity()},
        {QStringLiteral("tools"), QJsonArray::fromStringList(rawValues(services.settings()->tools()))},
        {QStringLiteral("prompter"), describe(*services.model<TeleprompterModel>())},
        {QStringLiteral("windowSystem"), QString::fromLatin1(windows.name)},
        {QStringLiteral("windowSystemReason"), windows.reason},
        {QStringLiteral("displays"), displays},
    };
    return QJsonDocument(report).toJson(QJsonDocument::Indented);
}

} // namespace Kestrune
