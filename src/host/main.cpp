#include <QStringList>
#include <QTextStream>

#include "PaintTime.h"
#include "PanelApplication.h"
#include "PanelOptions.h"

namespace {

QStringList textsFrom(int count, char** arguments) {
    QStringList texts;
    for (int i = 0; i < count; ++i)
        texts << QString::fromLocal8Bit(arguments[i]);
    return texts;
}

}  // namespace

int main(int argc, char** argv) {
    using namespace zephyrix;
    QTextStream out(stdout);
    QTextStream err(stderr);
    try {
        const PanelOptions options = PanelOptions::parse(textsFrom(argc, argv));
        if (options.help)
            out << PanelOptions::helpText();
        else if (options.version)
            out << "zephyrix-panel " ZEPHYRIX_VERSION "\n";
        else {
            if (options.paintTime)
                PaintTime::noteStart(argv);
            return runPanel(options, argv[0], out);
        }
        return 0;
    } catch (const PanelOptions::Error& error) {
        err << "zephyrix-panel: " << error.text() << "\nTry \"zephyrix-panel --help\".\n";
        return 2;
    }
}
