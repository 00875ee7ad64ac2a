#include "printing/TablePages.h"

#include "support/modCharacters.h"

namespace neb {
namespace {

// Inches.
constexpr double Margin = 0.6, TitleHeight = 0.3, LineHeight = 0.17, LineStep = 0.2, Space = 0.1;
constexpr qsizetype LettersToTheInch = 14;  // of a line of text, about

bool IsWide(QChar Letter) {
    const auto Script = Letter.script();
    return Script == QChar::Script_Han || Script == QChar::Script_Hangul ||
           Script == QChar::Script_Hiragana || Script == QChar::Script_Katakana;
}

// Of a line of Latin letters, so many of the text's own; Chinese ones take the room of two.
qsizetype LettersOf(const QString& Text, qsizetype Most) {
    qsizetype End = 0;
    for (qsizetype Room = Most; End < Text.size(); ++End)
        if ((Room -= IsWide(Text[End]) ? 2 : 1) < 0) break;
    return End;
}

// A text in lines of so many letters, broken at blanks where there are some.
QStringList Broken(QString Text, qsizetype Letters) {
    QStringList Lines;
    for (qsizetype Most; (Most = LettersOf(Text, Letters)) < Text.size();) {
        const qsizetype Blank = Text.lastIndexOf(u' ', Most);
        const qsizetype Whole = FirstUnits(Text, Most).size();
        // a letter with more marks than a line has room for is cut, or it would never come to an
        // end
        const qsizetype End = Blank > Most / 2 ? Blank : Whole > Most / 2 ? Whole : Most;
        Lines << Text.left(End);
        Text = QStringLiteral("    ") + Text.mid(End).trimmed();
    }
    return Lines << Text;
}

class TableComposer {
  public:
    TableComposer(PrintDocument& Into, const TableToPrint& Table) : mInto(Into), mTable(Table) {}

    void Compose() {
        mInto.Clear();
        mInto.SetOrientation(PageTurn::Landscape);
        mInto.StartDoc();
        BeginPage();
        Line({mTable.Title, {Margin, mY, Width(), TitleHeight}}, TitleHeight + Space);
        for (const QString& Each : mTable.Intro) Text(Each);
        mY += Space;
        Headings();
        for (const QStringList& Each : mTable.Rows) {
            if (IsFull()) Turn();
            Cells(Each);
        }
        mIsTable = false;
        for (const QString& Each : mTable.Tail)
            for (const QString& Part :
                 Broken(Each, static_cast<qsizetype>(Width()) * LettersToTheInch))
                Text(Part);
        mInto.EndDoc();
    }

  private:
    double Width() const { return mInto.PageSize().width() - 2 * Margin; }
    double Bottom() const { return mInto.PageSize().height() - Margin - LineStep; }
    bool IsFull() const { return mY + LineStep > Bottom(); }
    void BeginPage() {
        ++mPage;
        mY = Margin;
        const QRectF Foot(Margin, Bottom() + LineStep - LineHeight, Width(), LineHeight);
        mInto.DrawText({mTable.Title, Foot, TextSide::Left});
        mInto.DrawText({QString::number(mPage), Foot, TextSide::Right});
    }
    void Turn() {
        mInto.NewPage();
        BeginPage();
        if (mIsTable) Headings();
    }
    void Line(const PlacedText& Its, double Step) {
        mInto.DrawText(Its);
        mY += Step;
    }
    void Text(const QString& Its) {
        if (IsFull()) Turn();
        Line({Its, {Margin, mY, Width(), LineHeight}}, LineStep);
    }
    void Headings() {
        QStringList All;
        for (const TableColumn& Each : mTable.Columns) All << Each.Heading;
        Cells(All);
        mY += Space / 2;
    }
    void Cells(const QStringList& Texts) {
        double X = Margin;
        for (size_t Col = 0; Col < mTable.Columns.size(); ++Col) {
            const TableColumn& Its = mTable.Columns[Col];
            const double Wide = Width() * Its.Share;
            const QString Cell = Texts.value(static_cast<qsizetype>(Col));
            // One that is read from the right begins there.
            const bool AtRight = Its.Right || Cell.isRightToLeft();
            mInto.DrawText({Cell,
                            {X, mY, Wide - Space, LineHeight},
                            AtRight ? TextSide::Right : TextSide::Left});
            X += Wide;
        }
        mY += LineStep;
    }

    PrintDocument& mInto;
    const TableToPrint& mTable;
    double mY = 0;
    int mPage = 0;
    bool mIsTable = true;
};

}  // namespace

void ComposeTable(PrintDocument& Into, const TableToPrint& Table) {
    TableComposer(Into, Table).Compose();
}

}  // namespace neb
