// Writes JSON piece by piece, in the order of the calls, so that a large database need not be held
// twice. Used by nebctl dump. The text is UTF-8, indented by two blanks a level.
#pragma once

#include <QString>
#include <ostream>

namespace neb {

class JsonWriter {
  public:
    explicit JsonWriter(std::ostream& Out) : mOut(Out) {}

    // Name: the key within an object, nullptr within a list and at the top.
    void BeginObject(const char* Name = nullptr) { Begin(Name, '{'); }
    void BeginList(const char* Name) { Begin(Name, '['); }
    void EndObject() { End('}'); }
    void EndList() { End(']'); }
    void Value(const char* Name, std::int32_t Number);
    void Value(const char* Name, bool Flag);
    void Value(const char* Name, double Number);  // null when it is no finite number
    void Value(const char* Name, const QString& Text);

  private:
    void Begin(const char* Name, char Bracket);
    void End(char Bracket);
    void Next(const char* Name);
    void NewLine();

    std::ostream& mOut;
    int mLevel = 0;
    bool mFirst = true;  // of its list or object
};

}  // namespace neb
