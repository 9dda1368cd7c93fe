/* Stands in for a person and a stopwatch: an X client that starts programs, sends them pointer motion
 * through XTEST, and reads the screen and the program's CPU clock. It prints one line of JSON. */

#define _GNU_SOURCE
#include "screen.h"

#include <X11/extensions/XTest.h>

#include <fcntl.h>
#include <signal.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>
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
    patience_ms = 60000,
    settled_ms = 150, /* a program that used no CPU time for this long has finished its work */
};

static const char usage[] = "korva-bench-client start COLOR PROGRAM [ARGUMENT...]\n"
                            "    starts it; milliseconds until COLOR is on the screen\n"
                            "korva-bench-client stroke COLOR PID EVENTS RATE\n"
                            "    draws on the area of that colour; RATE a second, 0 as fast as it goes\n"
                            "korva-bench-client behind COLOR PID EVENTS RATE\n"
                            "    the same, and how long after each point it is seen\n"
                            "korva-bench-client click X Y\n"
                            "    taps the screen\n";

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

/* --- start -------------------------------------------------------------------------------------------- */

enum { most_marks = 20 };

/* What a preloaded korva-bench-marks has added up so far; how many sums. */
static size_t read_marks(double* sums)
{
    const char* const name = getenv("KORVA_BENCH_MARKS");
    FILE* const file = name ? fopen(name, "rb") : NULL;
    const size_t number = file ? fread(sums, sizeof *sums, most_marks, file) : 0;
    if (file)
        fclose(file);
    return number;
}

static int start(unsigned marker, char** command)
{
    const Damage damage = watch_screen();
    for (look(); marked_area(marker).count >= fewest_marked; look())
        usleep(10000); /* until the one before has gone */
    const double begin = now();
    const pid_t child = fork();
    if (child == 0) {
        char text[32];
        snprintf(text, sizeof text, "%.6f", begin);
        setenv("KORVA_BENCH_BEGIN", text, 1);
        setsid();
        const int nowhere = open("/dev/null", O_RDWR);
        dup2(nowhere, 0);
        dup2(nowhere, 1);
        dup2(nowhere, 2);
        execvp(command[0], command);
        _exit(127);
    }
    while (now() - begin < patience_ms / 1000.0) {
        while (look_again(damage)) {
            double marks[most_marks];
            const size_t number = read_marks(marks);
            const double seen = now();
            if (marked_area(marker).count < fewest_marked)
                continue;
            printf("{\"pid\": %d, \"ms\": %.2f, \"marks\": [", (int)child, (seen - begin) * 1000);
            for (size_t i = 0; i < number; ++i)
                printf(i == 0 ? "%.6f" : ", %.6f", marks[i]);
            puts("]}");
            return 0;
        }
        wait_for_server(0.1);
    }
    kill(-child, SIGKILL);
    fail("the picture did not appear");
    return 1;
}

/* --- stroke ------------------------------------------------------------------------------------------- */

struct point
{
    int x, y;
};

/* A comb, row by row to and fro: upper points at two heights, lower ones at one, two pixels apart. Three
 * successive points never lie on one straight line, so that a line drawn past a lost point misses it. The
 * middle of every segment within a row is a whole pixel. */
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
        drawn += is_changed(at, path_point(i)) && is_joined(at, i - 1, i, events) &&
                 is_joined(at, i, i + 1, events);
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

/* Puts the pen on the first point of the path, and remembers the screen before it. */
static struct area press_on_sheet(unsigned marker, clockid_t cpu)
{
    look();
    struct area at = marked_area(marker);
    at.left += margin;
    at.top += margin;
    if (at.right - at.left + 1 < path_width || at.bottom - at.top + 1 < path_height)
        fail("the picture on the screen is too small for the path");
    move_to(at, path_point(0));
    XSync(display, False);
    settle(cpu);
    look();
    const size_t bytes = (size_t)screen_image->bytes_per_line * (size_t)screen_image->height;
    before = malloc(bytes);
    memcpy(before, screen_image->data, bytes);
    XTestFakeButtonEvent(display, 1, True, CurrentTime);
    XSync(display, False);
    settle(cpu);
    return at;
}

static void release(clockid_t cpu)
{
    XTestFakeButtonEvent(display, 1, False, CurrentTime);
    XSync(display, False);
    settle(cpu);
    look();
}

static int stroke(unsigned marker, clockid_t cpu, int events, double rate)
{
    const struct area at = press_on_sheet(marker, cpu);
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
    release(cpu);
    printf("{\"events\": %d, \"seconds\": %.4f, \"cpu_us_per_event\": %.3f, \"points_drawn\": %d}\n",
           events, sent, used / (events - 1) * 1e6, points_drawn(at, events));
    return 0;
}

/* --- behind ------------------------------------------------------------------------------------------- */

static int by_size(const void* a, const void* b)
{
    const double x = *(const double*)a;
    const double y = *(const double*)b;
    return (x > y) - (x < y);
}

/* A point is seen when a look after it finds its pixel changed. Those that are never seen count as lost
 * only. */
static int behind(unsigned marker, clockid_t cpu, int events, double rate)
{
    static double sent[most_points];
    static double late[most_points];
    const struct area at = press_on_sheet(marker, cpu);
    const Damage damage = watch_screen();
    const double begin = now();
    double last_sent = begin;
    int next = 1;
    int seen = 0;
    while (seen < events - 1 && now() - last_sent < settled_ms / 100.0) {
        if (next < events && now() >= begin + next / rate) {
            sent[next] = last_sent = now();
            move_to(at, path_point(next));
            XFlush(display);
            ++next;
        }
        wait_for_server(next < events ? begin + next / rate - now() : 0.1);
        if (!look_again(damage))
            continue;
        for (int i = 1; i < next; ++i) {
            if (late[i] == 0 && is_changed(at, path_point(i))) {
                late[i] = now() - sent[i];
                ++seen;
            }
        }
    }
    release(cpu);
    qsort(late, (size_t)events, sizeof late[0], by_size);
    const double* const of_seen = late + events - seen;
    if (seen == 0)
        fail("the program draws nothing");
    printf("{\"events\": %d, \"points_drawn\": %d, \"median_ms\": %.2f, \"p95_ms\": %.2f, \"worst_ms\": "
           "%.2f}\n",
           events, points_drawn(at, events), of_seen[seen / 2] * 1e3, of_seen[seen * 95 / 100] * 1e3,
           of_seen[seen - 1] * 1e3);
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
    const bool is_stroke = strcmp(argv[1], "stroke") == 0;
    const bool is_behind = strcmp(argv[1], "behind") == 0;
    if (argc == 6 && (is_stroke || is_behind)) {
        clockid_t cpu;
        const int events = atoi(argv[4]);
        if (events < 2 || events > most_points || clock_getcpuclockid(atoi(argv[3]), &cpu) != 0)
            fail("no such program, or too many events");
        return (is_stroke ? stroke : behind)(marker, cpu, events, atof(argv[5]));
    }
    fputs(usage, stderr);
    return 2;
}
