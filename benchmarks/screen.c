#define _GNU_SOURCE
#include "screen.h"

#include <X11/Xutil.h>
#include <X11/extensions/XShm.h>

#include <poll.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>
#include <sys/ipc.h>
#include <sys/shm.h>
#include <time.h>

enum {
    tolerance = 12,       /* per channel: the marker may come from a JPEG */
    fewest_in_line = 100, /* pixels of the marker's colour that make a row or a column part of the sheet */
};

Display* display;
XImage* screen_image;

static XShmSegmentInfo segment;

void fail(const char* what)
{
    fprintf(stderr, "korva-bench-client: %s\n", what);
    exit(1);
}

void open_screen(void)
{
    display = XOpenDisplay(NULL);
    if (!display)
        fail("no display");
    const int screen = DefaultScreen(display);
    screen_image = XShmCreateImage(
        display, DefaultVisual(display, screen), (unsigned)DefaultDepth(display, screen), ZPixmap, NULL,
        &segment, (unsigned)DisplayWidth(display, screen), (unsigned)DisplayHeight(display, screen));
    if (!screen_image || screen_image->bits_per_pixel != 32)
        fail("the screen has no shared 32-bit pictures");
    segment.shmid = shmget(IPC_PRIVATE, (size_t)screen_image->bytes_per_line * (size_t)screen_image->height,
                           IPC_CREAT | 0600);
    segment.shmaddr = screen_image->data = shmat(segment.shmid, NULL, 0);
    segment.readOnly = False;
    XShmAttach(display, &segment);
    XSync(display, False);
    shmctl(segment.shmid, IPC_RMID, NULL);
}

void look(void)
{
    XShmGetImage(display, DefaultRootWindow(display), screen_image, 0, 0, AllPlanes);
}

Damage watch_screen(void)
{
    int event;
    int error;
    if (!XDamageQueryExtension(display, &event, &error))
        fail("the server has no DAMAGE extension");
    const Damage damage = XDamageCreate(display, DefaultRootWindow(display), XDamageReportNonEmpty);
    XSync(display, False);
    return damage;
}

bool look_again(Damage damage)
{
    if (!XPending(display))
        return false;
    XEvent event;
    XNextEvent(display, &event);
    XDamageSubtract(display, damage, None, None);
    look();
    return true;
}

void wait_for_server(double seconds_at_most)
{
    const struct timespec t = {0, (long)(seconds_at_most > 0 ? seconds_at_most * 1e9 : 0)};
    struct pollfd connection = {ConnectionNumber(display), POLLIN, 0};
    ppoll(&connection, 1, &t, NULL);
}

unsigned pixel(int x, int y)
{
    unsigned value;
    memcpy(&value, screen_image->data + y * screen_image->bytes_per_line + x * 4, sizeof value);
    return value & 0xffffffU;
}

static bool is_marker(unsigned value, unsigned marker)
{
    for (int shift = 0; shift < 24; shift += 8) {
        const int difference = (int)(value >> shift & 0xff) - (int)(marker >> shift & 0xff);
        if (abs(difference) > tolerance)
            return false;
    }
    return true;
}

struct area marked_area(unsigned marker)
{
    struct area a = {-1, -1, -1, -1, 0};
    int* const columns = calloc((size_t)screen_image->width, sizeof *columns);
    for (int y = 0; y < screen_image->height; ++y) {
        int in_row = 0;
        for (int x = 0; x < screen_image->width; ++x) {
            if (!is_marker(pixel(x, y), marker))
                continue;
            ++in_row;
            ++columns[x];
        }
        a.count += in_row;
        if (in_row >= fewest_in_line) {
            a.top = a.top < 0 ? y : a.top;
            a.bottom = y;
        }
    }
    for (int x = 0; x < screen_image->width; ++x) {
        if (columns[x] >= fewest_in_line) {
            a.left = a.left < 0 ? x : a.left;
            a.right = x;
        }
    }
    free(columns);
    return a;
}
