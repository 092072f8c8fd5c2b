#pragma once

#include <QObject>

namespace kiv::soak {

struct Stage;

/// Looks at what the program shows after everything that changes it, and checks what has to hold
/// at any time.
class Screen : public QObject {
    Q_OBJECT
public:
    /// The program is there, and ends after this.
    explicit Screen(Stage &stage);

    void look();

private:
    void schedule();

    Stage &m_stage;
    bool m_isScheduled = false;
};

} // namespace kiv::soak
