#include "platform/QtServices.h"

#include <QCoreApplication>

namespace zelvor {

// The application object owns the timers, where they are found by their names.
QtServices::QtServices(HelpViewer& help)
    : clock_(QCoreApplication::instance()), help_(help), backups_(BackupFolderPath()) {
    files_.OfferToOpen(BackupFolderPath());
}

} // namespace zelvor
