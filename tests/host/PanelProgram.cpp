#include "PanelProgram.h"

#include <QProcessEnvironment>
#include <gtest/gtest.h>

#include "support/ChosenPlace.h"
#include "support/LoopbackServer.h"
#include "support/TestHome.h"

namespace zephyrix::testing {

PanelProgram::PanelProgram() : home_(freshFolder()) {
    qputenv("XDG_CONFIG_HOME", (home_ + QStringLiteral("/config")).toUtf8());
}

void PanelProgram::start(QProcess& process, const QStringList& arguments) const {
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("XDG_CACHE_HOME"), home_ + QStringLiteral("/cache"));
    process.setProcessEnvironment(environment);
    process.start(command_.first(), command_.mid(1) + arguments);
}

Outcome PanelProgram::run(const QStringList& arguments) {
    QProcess process;
    start(process, arguments);
    EXPECT_TRUE(waitUntil([&] { return process.state() == QProcess::NotRunning; }));
    return outcomeOf(process);
}

void PanelProgram::choosePlace(qlonglong id) const {
    testing::choosePlace(id == 0 ? QVariantMap() : QVariantMap{{QStringLiteral("uid"), id}});
}

QVariant PanelProgram::sharedSetting(const QString& key) const {
    return sharedSettings()->object(key);
}

QVariant PanelProgram::setting(const QString& key) const {
    return UserDefaults::suite(QStringLiteral("zephyrix-panel"))->object(key);
}

void PanelProgram::setSetting(const QString& key, const QVariant& value) const {
    UserDefaults::suite(QStringLiteral("zephyrix-panel"))->set(key, value);
}

}  // namespace zephyrix::testing
