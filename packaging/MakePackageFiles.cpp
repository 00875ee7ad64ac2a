// neb-make-package-files DIR VERSION DATE: writes what is installed beside the programs and follows
// from their own tables and drawings: manual pages, completions, and the icon in the usual sizes.
#include <QDir>
#include <QFile>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>
#include <cstdio>

#include "InitAssets.h"
#include "packaging/manual/Completions.h"
#include "packaging/manual/ManPages.h"

namespace {

constexpr int IconSizes[] = {16, 22, 24, 32, 48, 64, 128, 256, 512};

bool Write(const QString& Path, const QByteArray& Bytes) {
    QFile File(Path);
    return QDir().mkpath(QFileInfo(Path).path()) && File.open(QIODevice::WriteOnly) &&
           File.write(Bytes) == Bytes.size() && File.flush();
}

bool WriteIcon(const QString& Dir, int Side) {
    QSvgRenderer Drawing(QStringLiteral(":/neb/neb-slide-show.svg"));
    QImage Icon(Side, Side, QImage::Format_ARGB32_Premultiplied);
    Icon.fill(Qt::transparent);
    QPainter Painter(&Icon);
    Drawing.render(&Painter);
    Painter.end();
    const QString Folder = QStringLiteral("%1/icons/hicolor/%2x%2/apps/").arg(Dir).arg(Side);
    return Drawing.isValid() && QDir().mkpath(Folder) &&
           Icon.save(Folder + QStringLiteral("neb-slide-show.png"));
}

bool WriteAll(const QString& Dir, const neb::Release& Of) {
    for (const int Side : IconSizes)
        if (!WriteIcon(Dir, Side)) return false;
    return Write(Dir + QStringLiteral("/neb-slide-show.1"), neb::ProgramManPage(Of)) &&
           Write(Dir + QStringLiteral("/nebctl.1"), neb::ToolManPage(Of)) &&
           Write(Dir + QStringLiteral("/completions/neb-slide-show"), neb::ProgramCompletion()) &&
           Write(Dir + QStringLiteral("/completions/nebctl"), neb::ToolCompletion());
}

}  // namespace

int main(int argc, char** argv) {
    neb::InitAssets();
    if (argc == 4 && WriteAll(QString::fromLocal8Bit(argv[1]), {argv[2], argv[3]})) return 0;
    std::fputs("neb-make-package-files: nothing, or not all, was written\n", stderr);
    return 1;
}
