#pragma once

namespace zelvor::tour {

class User;
class WindowThread;
struct FieldEdit;

/// Does what FieldEdits tell, in the window on top, and checks what the control shows once it is left.
class FieldHands {
public:
    FieldHands(WindowThread& windows, User& user) : windows_(windows), user_(user) {}

    void Do(const FieldEdit& edit);

private:
    void TypeText(const FieldEdit& edit);
    void ChooseEntry(const FieldEdit& edit);
    void TypeIntoCell(const FieldEdit& edit);
    void CheckShown(const FieldEdit& edit);
    void CheckCell(const FieldEdit& edit);

    WindowThread& windows_;
    User& user_;
};

} // namespace zelvor::tour
