#include "tools/words/ToolIO.h"

#include "support/modText.h"

namespace neb {

void PrintLine(std::ostream& Stream, const QString& Text) {
    Stream << ReadableText(Text).toUtf8().constData() << '\n';
}

int Fail(ToolIO& IO, const QString& Text) {
    PrintLine(IO.Err, QStringLiteral("nebctl: ") + Text);
    return ExitFailed;
}

ProgressLine::ProgressLine(ToolIO& IO, const char* What) : mIO(IO), mWhat(What) {}

ProgressLine::~ProgressLine() {
    Clear();
}

void ProgressLine::Show(size_t Done, size_t Total) {
    Say(QStringLiteral("%1 %").arg(Total == 0 ? 100 : Done * 100 / Total));
}

void ProgressLine::Say(const QString& Text) {
    if (!mIO.ErrIsTerminal || Text == mShown) return;
    mShown = Text;
    mIO.Err << '\r' << mWhat << ' ' << ReadableText(Text).toUtf8().constData() << "\033[K"
            << std::flush;
}

void ProgressLine::Clear() {
    if (!mShown.isEmpty()) mIO.Err << "\r\033[K" << std::flush;
    mShown.clear();
}

}  // namespace neb
