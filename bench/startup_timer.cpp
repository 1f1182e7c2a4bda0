// Times programs from their start to their first mapped top-level window on
// the X display in $DISPLAY, in turns, and prints the median of each and the
// ratio of each later program's median to the first one's.
//
// usage: startup_timer RUNS TIMEOUT_MS LABEL PROGRAM [LABEL PROGRAM]...
//
// Every program is started with this process's environment, so the caller
// controls it. A window is the program's own when its _NET_WM_PID is the
// child's pid. After the map the window is asked to close (WM_DELETE_WINDOW),
// as a user would; a program that has not ended after the time-out is killed.
// Every wait has the time-out; a run that exceeds it fails the whole timing.

#include <X11/Xatom.h>
#include <X11/Xlib.h>

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>
#include <vector>

#include <poll.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

using Clock = std::chrono::steady_clock;

struct Program
{
    std::string label;
    std::string path;
    std::vector<double> millis;
};

Display *display = nullptr;
Atom wmPid;
Atom wmProtocols;
Atom wmDeleteWindow;

double millisSince(Clock::time_point start)
{
    return std::chrono::duration<double, std::milli>(Clock::now() - start).count();
}

long windowPid(Window window)
{
    Atom type;
    int format;
    unsigned long count, after;
    unsigned char *data = nullptr;
    long pid = -1;
    if (XGetWindowProperty(display, window, wmPid, 0, 1, False, XA_CARDINAL, &type, &format, &count,
                           &after, &data) == Success &&
        data && format == 32 && count == 1)
        pid = long(*reinterpret_cast<unsigned long *>(data));
    if (data)
        XFree(data);
    return pid;
}

// Waits for the next X event until the deadline; false on time-out.
bool nextEvent(XEvent &event, Clock::time_point deadline)
{
    while (!XPending(display)) {
        const auto left =
            std::chrono::duration_cast<std::chrono::milliseconds>(deadline - Clock::now()).count();
        if (left <= 0)
            return false;
        pollfd fd{ConnectionNumber(display), POLLIN, 0};
        if (poll(&fd, 1, int(left)) < 0 && errno != EINTR)
            return false;
    }
    XNextEvent(display, &event);
    return true;
}

// Waits for the child to end; kills it after the deadline.
void reap(pid_t child, Clock::time_point deadline)
{
    for (;;) {
        int status;
        const pid_t done = waitpid(child, &status, WNOHANG);
        if (done == child || (done < 0 && errno != EINTR))
            return;
        if (Clock::now() >= deadline) {
            std::fprintf(stderr, "startup_timer: pid %d did not end, killing it\n", int(child));
            kill(child, SIGKILL);
            waitpid(child, &status, 0);
            return;
        }
        usleep(2000);
    }
}

void askToClose(Window window)
{
    XEvent close{};
    close.xclient.type = ClientMessage;
    close.xclient.window = window;
    close.xclient.message_type = wmProtocols;
    close.xclient.format = 32;
    close.xclient.data.l[0] = long(wmDeleteWindow);
    close.xclient.data.l[1] = CurrentTime;
    XSendEvent(display, window, False, NoEventMask, &close);
    XFlush(display);
}

// One start; returns the milliseconds to the mapped window, or a negative
// number on failure.
double timeOneStart(const Program &program, int timeoutMs)
{
    XSync(display, True); // drop the events of earlier runs
    const auto start = Clock::now();
    const pid_t child = fork();
    if (child < 0)
        return -1;
    if (child == 0) {
        execl(program.path.c_str(), program.path.c_str(), static_cast<char *>(nullptr));
        std::perror(program.path.c_str());
        _exit(127);
    }

    const auto deadline = start + std::chrono::milliseconds(timeoutMs);
    double millis = -1;
    Window window = None;
    XEvent event;
    while (nextEvent(event, deadline)) {
        if (event.type != MapNotify || event.xmap.override_redirect)
            continue;
        if (windowPid(event.xmap.window) == long(child)) {
            millis = millisSince(start);
            window = event.xmap.window;
            break;
        }
    }
    if (window == None)
        std::fprintf(stderr, "startup_timer: %s showed no window within %d ms\n",
                     program.label.c_str(), timeoutMs);
    else
        askToClose(window);
    reap(child, Clock::now() + std::chrono::milliseconds(timeoutMs));
    return millis;
}

double median(std::vector<double> values)
{
    std::sort(values.begin(), values.end());
    const size_t n = values.size();
    return n % 2 ? values[n / 2] : (values[n / 2 - 1] + values[n / 2]) / 2;
}

} // namespace

int main(int argc, char *argv[])
{
    if (argc < 5 || argc % 2 == 0) {
        std::fprintf(stderr, "usage: %s RUNS TIMEOUT_MS LABEL PROGRAM [LABEL PROGRAM]...\n",
                     argv[0]);
        return 2;
    }
    const int runs = std::atoi(argv[1]);
    const int timeoutMs = std::atoi(argv[2]);
    std::vector<Program> programs;
    for (int i = 3; i + 1 < argc; i += 2)
        programs.push_back({argv[i], argv[i + 1], {}});
    if (runs < 1 || timeoutMs < 1)
        return 2;

    display = XOpenDisplay(nullptr);
    if (!display) {
        std::fprintf(stderr, "startup_timer: cannot open display %s\n", std::getenv("DISPLAY"));
        return 1;
    }
    wmPid = XInternAtom(display, "_NET_WM_PID", False);
    wmProtocols = XInternAtom(display, "WM_PROTOCOLS", False);
    wmDeleteWindow = XInternAtom(display, "WM_DELETE_WINDOW", False);
    // Without a window manager every top-level window is a child of the root.
    XSelectInput(display, DefaultRootWindow(display), SubstructureNotifyMask);

    // One start of each that is not counted: it fills the file caches.
    for (const Program &program : programs) {
        if (timeOneStart(program, timeoutMs) < 0)
            return 1;
    }
    for (int run = 0; run < runs; ++run) {
        // Turns alternate which program goes first.
        for (size_t i = 0; i < programs.size(); ++i) {
            Program &program = programs[(i + size_t(run)) % programs.size()];
            const double millis = timeOneStart(program, timeoutMs);
            if (millis < 0)
                return 1;
            program.millis.push_back(millis);
        }
    }

    const double base = median(programs.front().millis);
    for (const Program &program : programs) {
        const double m = median(program.millis);
        std::printf("  %-16s median %7.1f ms  (min %7.1f, max %7.1f, %d runs)",
                    program.label.c_str(), m,
                    *std::min_element(program.millis.begin(), program.millis.end()),
                    *std::max_element(program.millis.begin(), program.millis.end()), runs);
        if (&program != &programs.front())
            std::printf("  ratio %.3f", m / base);
        std::printf("\n");
    }
    XCloseDisplay(display);
    return 0;
}
