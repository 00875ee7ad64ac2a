// The texts of the program that were shown in English because they have no translation.
#pragma once

#include <QSet>
#include <QTranslator>

namespace neb::harness {

// Installed before any translation, it is asked for what no translation has.
class UntranslatedTexts : public QTranslator {
  public:
    UntranslatedTexts() { QCoreApplication::installTranslator(this); }
    bool isEmpty() const override { return false; }
    QString translate(const char* Context, const char* Text, const char*, int) const override {
        const QByteArray Of(Context);
        const bool IsOwn = Of.startsWith("neb") || Of == "QObject" || Of == "TimeLeft";
        if (IsOwn && *Text) mFound.insert(QString::fromUtf8(Text));
        return {};
    }
    const QSet<QString>& Found() const { return mFound; }

  private:
    mutable QSet<QString> mFound;
};

}  // namespace neb::harness
