import QtQuick

// What the colours of a scene stand for: a LegendEntry each.
Flow {
    spacing: 16
}
