#pragma once

#include <QByteArray>
#include <gtest/gtest.h>

#include "foundation/Clock.h"
#include "host/PanelProgram.h"
#include "support/Documents.h"
#include "support/LoopbackServer.h"

namespace zephyrix::testing {

/// The panel of a user who has a place and a document of age (7 °C), and a feed with a newer one
/// (21 °C) until a test says otherwise.
class AgedPanel : public ::testing::Test {
  protected:
    AgedPanel();

    /// Stores the document as one that was fetched so many seconds ago; its bytes in the store.
    QVariant age(double seconds = 9999.0) const;
    [[nodiscard]] QVariant document() const;

    /// Runs `zephyrix-panel --text --feed` with the server's address, or with another one.
    Outcome report();
    Outcome reportFrom(const QString& feed);

    /// The lines of a log that tell of something else than an ordinary fetch.
    [[nodiscard]] static QList<QByteArray> troubles(const QByteArray& log);

    PanelProgram panel_;
    LoopbackServer server_{answerBody(feedDocument(21.0, Clock::now()))};
};

}  // namespace zephyrix::testing
