#include "ui/HelpLinks.h"

#include "core/Browser.h"
#include "core/Global.h"
#include "core/Prompts.h"
#include "core/VersionRecord.h"

void HelpLinks::open(const QString& page, const QString& boxTitle) {
    const QString address = VersionRecord::site.toString() + page;
    if (!Global::service(&Services::browser).open(address)) {
        const QString text = QStringLiteral("Unable to open your browser and connect to the site.  Please "
                                            "connect to the internet and navigate to ") +
                             address;
        Global::service(&Services::prompts)
            .messageBox(boxTitle, text, MessageIcon::Information, MessageButtons::Ok);
    }
}
