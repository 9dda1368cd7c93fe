// An editor in a window, whoever works on it, and its host. Byte 0 is its kind of colours; after that each
// byte is a row of the table in Happenings.cpp, with the bytes that it asks for behind it.
#include "Desk.h"
#include "Fuzz.h"

void fuzz::feed(const QByteArray& input)
{
    static Services& services = Services::install();
    Desk desk(input, services);
    while (!desk.isDone()) {
        desk.happen();
        desk.check();
    }
    desk.checkHistory();
}
