#pragma once

#include "platform/MessageBoxes.h"

namespace zelvor {

/// Every box is a QMessageBox with the objectName "MessageBox".
class QtMessageBoxes : public MessageBoxes {
public:
    MessageAnswer Show(const Message& message) override;
};

} // namespace zelvor
