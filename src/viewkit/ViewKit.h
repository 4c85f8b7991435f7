#pragma once

#include <QObject>

// What every view of the kit relies on, made once per application at start-up and owned by it:
// the keyboard's navigator, the hover registry, and the interfaces assistive technology sees of
// the views, the windows and the application. Nothing in the kit makes them on the way.
class ViewKit : public QObject {
    Q_OBJECT
public:
    // Makes them for the running application, unless it has them; called where the window is built.
    static void Install();
    ~ViewKit() override;

private:
    explicit ViewKit(QObject* application);
};
