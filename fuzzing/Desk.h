#pragma once

#include "Bytes.h"
#include "Person.h"
#include "Services.h"

#include <KORVA_EditCanvas.h>

#include <QPointer>
#include <QWidget>

#include <optional>

namespace fuzz {

/// An editor in a window, who works on it and what its host does with it, as the input says.
class Desk
{
public:
    Desk(const QByteArray& input, Services& services);
    ~Desk();
    Desk(const Desk&) = delete;
    Desk& operator=(const Desk&) = delete;

    [[nodiscard]] bool isDone() const { return m_bytes.atEnd(); }
    /// One thing, and what the event loop then does.
    void happen();
    /// What holds after each of them.
    void check() const;
    /// What holds at the end: undo leads back, and redo forth again.
    void checkHistory();

private:
    struct Happening
    {
        const char* name;
        void (*what)(Desk& desk);
        bool isHosts; ///< a host may do it in a slot of any signal
    };
    static const Happening happenings[];
    static const Happening& rowOf(int number);

    void makeEditor();
    void deleteEditor();
    void react();
    void beAsked();
    [[nodiscard]] KORVA_Canvas& canvas() const;
    void paint();
    void addTool();

    // Read from the input.
    [[nodiscard]] QPixmap picture();
    [[nodiscard]] QSize size();
    [[nodiscard]] QPoint place();
    [[nodiscard]] QColor color();
    [[nodiscard]] QString file();
    [[nodiscard]] KORVA_Features features();
    [[nodiscard]] KORVA_Manners manners();

    Bytes m_bytes;
    Services& m_services;
    QWidget m_window;
    QPointer<KORVA_EditCanvas> m_editor;
    std::optional<Person> m_person;
    bool m_mayBeEmpty = false; ///< the host has asked for a side of no pixels
    bool m_isStepOpen = false;
    int m_reactions = 0; ///< how many signals the host still reacts to
    int m_depth = 0;     ///< of what happens meanwhile
    bool m_isPersonActing = false;
    int m_saves = 0;
    bool m_hasWaited = false;
    int m_tools = 0;
    int m_happened = 0;
};

} // namespace fuzz
