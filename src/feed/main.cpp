#include <chrono>
#include <cstdlib>
#include <future>
#include <memory>

#include <QCoreApplication>
#include <QTextStream>

#include "Bridge.h"
#include "DemonstrationWeather.h"
#include "EndRequest.h"
#include "FeedOptions.h"
#include "FeedServer.h"
#include "PlaceDirectory.h"
#include "foundation/Log.h"

namespace {

using namespace zephyrix;

void print(FILE* stream, const QString& text) {
    QTextStream(stream) << text;
    std::fflush(stream);
}

/// Stops answering at once. A request that is only half received would hold the program for
/// seconds; it is left behind.
void endServing(FeedServer& server, const std::future<void>& serving) {
    for (int attempt = 0; attempt < 10; ++attempt) {
        server.stop();
        if (serving.wait_for(std::chrono::milliseconds(10)) == std::future_status::ready)
            return;
    }
    std::_Exit(EXIT_SUCCESS);
}

int serve(const FeedOptions& options) {
    const EndRequest end(options.endWithInput ? EndRequest::Input::Watched
                                              : EndRequest::Input::Ignored);
    const DemonstrationWeather demonstration(*options.scenario);
    const auto bridge =
        options.bridge ? std::make_unique<Bridge>(*options.bridge, ZEPHYRIX_VERSION) : nullptr;
    const DocumentKeeper documents(bridge ? bridge->source() : demonstration);
    const PlaceDirectory places(options.everyPlace, bridge ? PlaceDirectory::Unknown::Refused
                                                           : PlaceDirectory::Unknown::Invented);
    FeedServer server(documents, places);
    const auto port = server.listenOn(options.port);
    if (!port) {
        print(stderr, QStringLiteral("zephyrix-feedd: port %1 cannot be had\n").arg(options.port));
        return EXIT_FAILURE;
    }
    logLine(bridge ? QStringLiteral("weather by %1").arg(options.bridge->source)
                   : QStringLiteral("demonstration weather"));
    print(stdout, QStringLiteral("listening on http://127.0.0.1:%1/\n").arg(*port));
    const auto serving = std::async(std::launch::async, [&server] { server.serve(); });
    end.wait();
    endServing(server, serving);
    return EXIT_SUCCESS;
}

}  // namespace

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("zephyrix-feedd"));
    try {
        const auto options = FeedOptions::from(QCoreApplication::arguments().mid(1));
        if (options.help)
            print(stdout, FeedOptions::helpText());
        else if (options.version)
            print(stdout, QStringLiteral("zephyrix-feedd " ZEPHYRIX_VERSION "\n"));
        else
            return serve(options);
        return EXIT_SUCCESS;
    } catch (const BadOption& error) {
        print(stderr, QStringLiteral("zephyrix-feedd: %1\nTry \"zephyrix-feedd --help\".\n")
                          .arg(QString::fromUtf8(error.what())));
        return 2;
    }
}
