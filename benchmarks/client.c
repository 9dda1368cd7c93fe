/* Stands in for a person and a stopwatch: an X client that starts programs, sends them pointer motion through
 * XTEST, and reads the screen and the program's CPU clock. It prints one line of JSON. */

#define _GNU_SOURCE
#include <X11/Xlib.h>
#include <X11/Xutil.h>
#include <X11/extensions/XShm.h>
#include <X11/extensions/XTest.h>
#include <X11/extensions/Xdamage.h>

#include <fcntl.h>
#include <poll.h>
#include <signal.h>
#include <stdbool.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>
#include <sys/ipc.h>
#include <sys/shm.h>
#include <time.h>
#include <unistd.h>

enum {
    row_points = 95,
    row_height = 7,
    most_points = 2000,
    path_width = 2 * row_points - 1, /* pixels; every program's picture must show that much */
    path_height = (most_points / row_points + 1) * row_height,
    margin = 4,
    fewest_marked = 500, /* pixels of the marker's colour that count as "painted" */
    tolerance = 12,      /* per channel: the marker may come from a JPEG */
    patience_ms = 20000,
    settled_ms = 150, /* a program that used no CPU time for this long has finished its work */
};

static const char usage[] =
    "korva-bench-client start COLOR PROGRAM [ARGUMENT...]   starts it; milliseconds until COLOR is on the screen\n"
    "korva-bench-client stroke COLOR PID EVENTS RATE        draws on the area of that colour; RATE a second,\n"
    "                                                       0 as fast as it goes\n"
    "korva-bench-client click X Y                           taps the screen\n";

static Display* display;
static XImage* screen_image;
static XShmSegmentInfo segment;

static void fail(const char* what)
{
    fprintf(stderr, "korva-bench-client: %s\n", what);
    exit(1);
}

static double seconds(clockid_t clock)
{
    struct timespec t;
    if (clock_gettime(clock, &t) != 0)
        fail("the program has ended");
    return (double)t.tv_sec + 1e-9 * (double)t.tv_nsec;
}

static double now(void)
{
    return seconds(CLOCK_MONOTONIC);
}

static void sleep_until(double when)
{
    struct timespec t = {(time_t)when, (long)((when - (double)(time_t)when) * 1e9)};
    clock_nanosleep(CLOCK_MONOTONIC, TIMER_ABSTIME, &t, NULL);
}

/* --- The screen ---------------------------------------------------------------------------------------------- */

static void open_screen(void)
{
    display = XOpenDisplay(NULL);
    if (!display)
        fail("no display");
    const int screen = DefaultScreen(display);
    screen_image = XShmCreateImage(display, DefaultVisual(display, screen), (unsigned)DefaultDepth(display, screen),
                                   ZPixmap, NULL, &segment, (unsigned)DisplayWidth(display, screen),
                                   (unsigned)DisplayHeight(display, screen));
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

static void look(void)
{
    XShmGetImage(display, DefaultRootWindow(display), screen_image, 0, 0, AllPlanes);
}

static unsigned pixel(int x, int y)
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

struct area {
    int left, top, right, bottom; /* inclusive */
    int count;
};

static struct area marked_area(unsigned marker)
{
    struct area a = {screen_image->width, screen_image->height, -1, -1, 0};
    for (int y = 0; y < screen_image->height; ++y) {
        for (int x = 0; x < screen_image->width; ++x) {
            if (!is_marker(pixel(x, y), marker))
                continue;
            ++a.count;
            a.left = x < a.left ? x : a.left;
            a.right = x > a.right ? x : a.right;
            a.top = y < a.top ? y : a.top;
            a.bottom = y > a.bottom ? y : a.bottom;
        }
    }
    return a;
}

/* --- start --------------------------------------------------------------------------------------------------- */

static int start(unsigned marker, char** command)
{
    int damage_event;
    int damage_error;
    if (!XDamageQueryExtension(display, &damage_event, &damage_error))
        fail("the server has no DAMAGE extension");
    const Damage damage = XDamageCreate(display, DefaultRootWindow(display), XDamageReportNonEmpty);
    XSync(display, False);

    const double begin = now();
    const pid_t child = fork();
    if (child == 0) {
        setsid();
        const int nowhere = open("/dev/null", O_RDWR);
        dup2(nowhere, 0);
        dup2(nowhere, 1);
        dup2(nowhere, 2);
        execvp(command[0], command);
        _exit(127);
    }
    while (now() - begin < patience_ms / 1000.0) {
        while (XPending(display)) {
            XEvent event;
            XNextEvent(display, &event);
            XDamageSubtract(display, damage, None, None);
            look();
            const double seen = now();
            if (marked_area(marker).count < fewest_marked)
                continue;
            printf("{\"pid\": %d, \"ms\": %.2f}\n", (int)child, (seen - begin) * 1000);
            return 0;
        }
        struct pollfd connection = {ConnectionNumber(display), POLLIN, 0};
        poll(&connection, 1, 100);
    }
    kill(-child, SIGKILL);
    fail("the picture did not appear");
    return 1;
}

/* --- stroke -------------------------------------------------------------------------------------------------- */

struct point {
    int x, y;
};

/* A comb, row by row to and fro: upper points at two heights, lower ones at one, two pixels apart. Three successive
 * points never lie on one straight line, so that a line drawn past a lost point misses it. The middle of every
 * segment within a row is a whole pixel. */
static struct point path_point(int i)
{
    const int row = i / row_points;
    const int column = i % row_points;
    const int upper = 2 * (int)((unsigned)i * 2654435761U >> 31);
    const struct point p = {(row % 2 == 0 ? column : row_points - 1 - column) * 2,
                            row * row_height + (i % 2 == 0 ? upper : row_height - 3)};
    return p;
}

static unsigned char* before;

static bool is_changed(struct area at, struct point p)
{
    const int offset = (at.top + p.y) * screen_image->bytes_per_line + (at.left + p.x) * 4;
    return memcmp(before + offset, screen_image->data + offset, 3) != 0;
}

static bool is_joined(struct area at, int i, int j, int events)
{
    if (i < 0 || j >= events || i / row_points != j / row_points)
        return true;
    const struct point a = path_point(i);
    const struct point b = path_point(j);
    const struct point middle = {(a.x + b.x) / 2, (a.y + b.y) / 2};
    return is_changed(at, middle);
}

static int points_drawn(struct area at, int events)
{
    int drawn = 0;
    for (int i = 0; i < events; ++i)
        drawn += is_changed(at, path_point(i)) && is_joined(at, i - 1, i, events) && is_joined(at, i, i + 1, events);
    return drawn;
}

static void move_to(struct area at, struct point p)
{
    XTestFakeMotionEvent(display, DefaultScreen(display), at.left + p.x, at.top + p.y, CurrentTime);
}

static void settle(clockid_t cpu)
{
    const double end = now() + patience_ms / 1000.0;
    double last = seconds(cpu);
    double quiet_since = now();
    while (now() < end && now() - quiet_since < settled_ms / 1000.0) {
        usleep(10000);
        const double used = seconds(cpu);
        if (used - last > 1e-4)
            quiet_since = now();
        last = used;
    }
}

static int stroke(unsigned marker, pid_t pid, int events, double rate)
{
    clockid_t cpu;
    if (events < 2 || events > most_points || clock_getcpuclockid(pid, &cpu) != 0)
        fail("no such program, or too many events");
    look();
    struct area at = marked_area(marker);
    at.left += margin;
    at.top += margin;
    if (at.right - at.left + 1 < path_width || at.bottom - at.top + 1 < path_height)
        fail("the picture on the screen is too small for the path");

    const struct point first = path_point(0);
    move_to(at, first);
    XSync(display, False);
    settle(cpu);
    look();
    const size_t bytes = (size_t)screen_image->bytes_per_line * (size_t)screen_image->height;
    before = malloc(bytes);
    memcpy(before, screen_image->data, bytes);

    XTestFakeButtonEvent(display, 1, True, CurrentTime);
    XSync(display, False);
    settle(cpu);
    const double cpu_begin = seconds(cpu);
    const double begin = now();
    for (int i = 1; i < events; ++i) {
        if (rate > 0)
            sleep_until(begin + i / rate);
        move_to(at, path_point(i));
        if (rate > 0)
            XFlush(display);
    }
    XSync(display, False);
    const double sent = now() - begin;
    settle(cpu);
    const double used = seconds(cpu) - cpu_begin;
    XTestFakeButtonEvent(display, 1, False, CurrentTime);
    XSync(display, False);
    settle(cpu);
    look();
    printf("{\"events\": %d, \"seconds\": %.4f, \"cpu_us_per_event\": %.3f, \"points_drawn\": %d}\n", events, sent,
           used / (events - 1) * 1e6, points_drawn(at, events));
    return 0;
}

static int click(int x, int y)
{
    XTestFakeMotionEvent(display, DefaultScreen(display), x, y, CurrentTime);
    XTestFakeButtonEvent(display, 1, True, CurrentTime);
    XTestFakeButtonEvent(display, 1, False, CurrentTime);
    XSync(display, False);
    return 0;
}

int main(int argc, char** argv)
{
    if (argc < 4) {
        fputs(usage, stderr);
        return 2;
    }
    open_screen();
    if (strcmp(argv[1], "click") == 0 && argc == 4)
        return click(atoi(argv[2]), atoi(argv[3]));
    const unsigned marker = (unsigned)strtoul(argv[2], NULL, 16);
    if (strcmp(argv[1], "start") == 0)
        return start(marker, argv + 3);
    if (strcmp(argv[1], "stroke") == 0 && argc == 6)
        return stroke(marker, (pid_t)atoi(argv[3]), atoi(argv[4]), atof(argv[5]));
    fputs(usage, stderr);
    return 2;
}
