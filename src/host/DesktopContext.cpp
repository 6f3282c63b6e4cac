#include "DesktopContext.h"

#include <utility>

#include <QDesktopServices>
#include <QProcess>

#include "foundation/Log.h"

namespace zephyrix {

namespace {

bool hand(const QUrl& address, bool hasProgram) {
    const bool opened = hasProgram && QDesktopServices::openUrl(address);
    if (!opened)
        logLine(QStringLiteral("no program opens %1").arg(address.toDisplayString()));
    return opened;
}

}  // namespace

void DesktopContext::openURL(const QUrl& address,
                             std::function<void(bool opened)> completionHandler) {
    auto* const question = new QProcess(&questions_);
    const auto answer = [address, question, handler = std::move(completionHandler)](bool known) {
        question->deleteLater();
        const bool opened = hand(address, known);
        if (handler)
            handler(opened);
    };
    QObject::connect(question, &QProcess::finished, question, [question, answer] {
        answer(!question->readAllStandardOutput().trimmed().isEmpty());
    });
    QObject::connect(question, &QProcess::errorOccurred, question,
                     [answer](QProcess::ProcessError error) {
                         if (error == QProcess::FailedToStart)
                             answer(true);  // nobody to ask, so it is tried
                     });
    question->start(QStringLiteral("xdg-mime"),
                    {QStringLiteral("query"), QStringLiteral("default"),
                     QStringLiteral("x-scheme-handler/%1").arg(address.scheme())},
                    QIODevice::ReadOnly);
}

}  // namespace zephyrix
