#pragma once

#include <QCoreApplication>
#include <QString>

namespace pad::language {

/// Which language the program speaks: a code like "de" or "pt_BR"; empty: the locale's. Before any load().
void choose(const QString& code);

/// Loads the language into the application object: the texts of library and program, and Qt's where they
/// are installed. Windows made from then on run in its direction. English where there is no such language;
/// the result is whether what was chosen is spoken.
bool load();

/// What to say when load() could not do as it was told: one line.
[[nodiscard]] QString complaint();

/// Where there is no application object yet: one that is good for words only, in the language chosen.
class Early
{
public:
    Early();

private:
    int m_argc = 1;
    char m_name[6] = "korva";
    char* m_argv[2] = {m_name, nullptr};
    QCoreApplication m_application{m_argc, m_argv};
};

} // namespace pad::language
