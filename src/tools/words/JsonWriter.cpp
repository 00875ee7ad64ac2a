#include "tools/words/JsonWriter.h"

#include <cmath>

#include "support/modNumbers.h"
#include "support/modText.h"

namespace neb {
namespace {

QByteArray Quoted(const QString& Text) {
    QByteArray Result = "\"";
    for (const char Byte : ReadableText(Text).toUtf8()) {
        const auto Code = static_cast<unsigned char>(Byte);
        if (Byte == '"' || Byte == '\\') Result.append('\\');
        if (Code < 0x20)
            Result.append("\\u00").append(QByteArray::number(Code, 16).rightJustified(2, '0'));
        else
            Result.append(Byte);
    }
    return Result.append('"');
}

}  // namespace

void JsonWriter::NewLine() {
    mOut << '\n';
    for (int I = 0; I < mLevel; ++I) mOut << "  ";
}

void JsonWriter::Next(const char* Name) {
    if (!mFirst) mOut << ',';
    if (mLevel > 0) NewLine();
    if (Name) mOut << '"' << Name << "\": ";
    mFirst = false;
}

void JsonWriter::Begin(const char* Name, char Bracket) {
    Next(Name);
    mOut << Bracket;
    ++mLevel;
    mFirst = true;
}

void JsonWriter::End(char Bracket) {
    --mLevel;
    if (!mFirst) NewLine();
    mOut << Bracket;
    mFirst = false;
    if (mLevel == 0) mOut << '\n';
}

void JsonWriter::Value(const char* Name, std::int32_t Number) {
    Next(Name);
    mOut << QByteArray::number(Number).constData();
}

void JsonWriter::Value(const char* Name, bool Flag) {
    Next(Name);
    mOut << (Flag ? "true" : "false");
}

void JsonWriter::Value(const char* Name, double Number) {
    Next(Name);
    mOut << (std::isfinite(Number) ? ShortestDecimal(Number).toUtf8() : "null").constData();
}

void JsonWriter::Value(const char* Name, const QString& Text) {
    Next(Name);
    mOut << Quoted(Text).constData();
}

}  // namespace neb
