#include "tools/words/ToolIO.h"

namespace neb {

void PrintLine(std::ostream& Stream, const QString& Text) {
    Stream << Text.toUtf8().constData() << '\n';
}

int Fail(ToolIO& IO, const QString& Text) {
    PrintLine(IO.Err, QStringLiteral("nebctl: ") + Text);
    return ExitFailed;
}

ProgressLine::ProgressLine(ToolIO& IO, const char* What) : mIO(IO), mWhat(What) {}

ProgressLine::~ProgressLine() {
    if (mShown >= 0) mIO.Err << "\r\033[K" << std::flush;
}

void ProgressLine::Show(size_t Done, size_t Total) {
    const int Percent = Total == 0 ? 100 : static_cast<int>(Done * 100 / Total);
    if (!mIO.ErrIsTerminal || Percent == mShown) return;
    mShown = Percent;
    mIO.Err << '\r' << mWhat << ' ' << Percent << " %\033[K" << std::flush;
}

}  // namespace neb
