// kiv-icons SVG FOLDER SIZE...: draws the icon once for each size, where an icon theme has it below
// FOLDER. Used by the build alone.

#include <QDir>
#include <QFileInfo>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>

#include <cstdio>

int main(int argc, char **argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    const QStringList arguments = QGuiApplication::arguments();
    QSvgRenderer drawing(arguments.value(1));
    if (!drawing.isValid()) {
        std::fprintf(stderr, "There is no drawing in %s\n", qPrintable(arguments.value(1)));
        return 1;
    }
    const QString name = QFileInfo(arguments.value(1)).completeBaseName();
    for (const QString &size : arguments.mid(3)) {
        QImage image(size.toInt(), size.toInt(), QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::transparent);
        QPainter painter(&image);
        drawing.render(&painter);
        painter.end();
        const QDir folder(QStringLiteral("%1/%2x%2/apps").arg(arguments.value(2), size));
        if (!folder.mkpath(QStringLiteral(".")) ||
            !image.save(folder.filePath(name + QStringLiteral(".png")))) {
            std::fprintf(stderr, "The icon cannot be written below %s\n",
                         qPrintable(folder.path()));
            return 1;
        }
    }
    return 0;
}
