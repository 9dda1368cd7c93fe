#pragma once

#include <X11/Xlib.h>
#include <X11/extensions/Xdamage.h>

#include <stdbool.h>

/* The screen as the client sees it. Whatever goes wrong ends the program. */

extern Display* display;
extern XImage* screen_image; /* what the last look has seen */

struct area
{
    int left, top, right, bottom; /* inclusive */
    int count;
};

void fail(const char* what);

void open_screen(void);
void look(void);
unsigned pixel(int x, int y);

Damage watch_screen(void);
/* Looks if something has changed since the last look. */
bool look_again(Damage damage);
/* Until something may have changed. */
void wait_for_server(double seconds_at_most);

/* The sheet: rows and columns with many pixels of that colour. A few may be in a palette, too. */
struct area marked_area(unsigned marker);
