#include "SampleReport.h"
#include "reports/pages/DocumentFiles.h"
#include "reports/pages/PageSurface.h"

#include <QGuiApplication>

/// Lays the sample report out and writes it as the PDF file of the first argument.
int main(int argc, char** argv) {
    const QGuiApplication application(argc, argv);
    if (argc != 2) {
        return 2;
    }
    PageSurface surface;
    SampleReport::write(surface);
    writePdf(surface.document(), QString::fromLocal8Bit(argv[1]));
    return 0;
}
