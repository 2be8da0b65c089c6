// velara-start [--runs N] [--until RRGGBB] [--cold yes] PROGRAM [ARGUMENT]... [-- PROGRAM [ARGUMENT]...]...: starts the
// programs alternately on the display and prints for each, in milliseconds, the medians until its first window is
// shown, until its frame is painted (the first window of at least 600 by 400 pixels), how long the first thread of the
// frame's process has run for by then, how many megabytes the process has had read from the disk by then, and until
// that colour is in the frame, by which a picture is known: a file that the program is given should have it in its
// middle, and nothing else of the program's. Last is the shortest time to the frame.
//
// With --cold nothing that a start reads is in memory before it: root drops all that the system keeps of files, others
// the files that the program had mapped at its last start, but for those that other programs have mapped, too.
//
// For a display without anything else on it. The owner of the frame is ended by SIGTERM; where it has files of its own,
// they should be in a folder that the caller has made for it.
#include <algorithm>
#include <chrono>
#include <csignal>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <fstream>
#include <optional>
#include <set>
#include <string>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>
#include <xcb/xcb.h>

namespace {

using Clock = std::chrono::steady_clock;
constexpr int kLimit = 30; // seconds

xcb_connection_t* display;
xcb_window_t root;

double since(Clock::time_point start)
{
    return std::chrono::duration<double, std::milli>(Clock::now() - start).count();
}

template <class Reply> struct Freed {
    Reply* reply;
    ~Freed() { std::free(reply); }
};

struct Window {
    xcb_window_t id;
    int width, height;
};

/// Those of the display that are shown, or lie in the frame of a window manager; depth of the search: two.
void collect(xcb_window_t parent, int depth, std::vector<Window>& all)
{
    const Freed tree{xcb_query_tree_reply(display, xcb_query_tree(display, parent), nullptr)};
    if (!tree.reply) return;
    const xcb_window_t* child = xcb_query_tree_children(tree.reply);
    for (int i = 0; i < xcb_query_tree_children_length(tree.reply); ++i) {
        const Freed state{
            xcb_get_window_attributes_reply(display, xcb_get_window_attributes(display, child[i]), nullptr)};
        const Freed size{xcb_get_geometry_reply(display, xcb_get_geometry(display, child[i]), nullptr)};
        if (!state.reply || !size.reply || state.reply->map_state != XCB_MAP_STATE_VIEWABLE) continue;
        if (state.reply->_class != XCB_WINDOW_CLASS_INPUT_OUTPUT) continue;
        if (size.reply->width > 1) all.push_back({child[i], size.reply->width, size.reply->height});
        if (depth > 1) collect(child[i], depth - 1, all);
    }
}

/// The colour of a point of a window, 0xRRGGBB; -1 where it can't be had.
int colourAt(xcb_window_t window, int x, int y)
{
    const auto asked =
        xcb_get_image(display, XCB_IMAGE_FORMAT_Z_PIXMAP, window, std::int16_t(x), std::int16_t(y), 1, 1, ~0u);
    const Freed image{xcb_get_image_reply(display, asked, nullptr)};
    std::uint32_t pixel = 0;
    if (!image.reply || xcb_get_image_data_length(image.reply) < 4) return -1;
    std::memcpy(&pixel, xcb_get_image_data(image.reply), sizeof pixel);
    return int(pixel & 0xFFFFFF);
}

/// Whether two colours are as good as one: a file may have lost some of it.
bool alike(int one, int other)
{
    constexpr int kMost = 12;
    for (int shift = 0; shift < 24; shift += 8)
        if (std::abs((one >> shift & 255) - (other >> shift & 255)) > kMost) return false;
    return one >= 0;
}

/// Whether the colour is at one of some points of the window's middle.
bool shows(const Window& window, int colour)
{
    constexpr int kPoints = 5;
    for (int i = 1; i < kPoints; ++i)
        for (int j = 1; j < kPoints; ++j)
            if (alike(colourAt(window.id, window.width * i / kPoints, window.height * j / kPoints), colour))
                return true;
    return false;
}

/// Milliseconds that the first thread of a process has run for, which other programs don't prolong.
double busy(pid_t process)
{
    char path[64];
    std::snprintf(path, sizeof path, "/proc/%d/schedstat", process);
    double nanoseconds = 0;
    if (std::FILE* file = std::fopen(path, "r")) {
        if (std::fscanf(file, "%lf", &nanoseconds) != 1) nanoseconds = 0;
        std::fclose(file);
    }
    return nanoseconds / 1e6;
}

/// Of the process that a window belongs to; 0 where it doesn't say.
pid_t ownerOf(xcb_window_t window)
{
    constexpr char kName[] = "_NET_WM_PID";
    const Freed name{xcb_intern_atom_reply(display, xcb_intern_atom(display, 0, sizeof kName - 1, kName), nullptr)};
    const auto asked = xcb_get_property(display, 0, window, name.reply->atom, XCB_ATOM_CARDINAL, 0, 1);
    const Freed property{xcb_get_property_reply(display, asked, nullptr)};
    if (!property.reply || xcb_get_property_value_length(property.reply) != 4) return 0;
    std::uint32_t process = 0;
    std::memcpy(&process, xcb_get_property_value(property.reply), sizeof process);
    return static_cast<pid_t>(process);
}

/// Megabytes that a process has had read from the disk; 0 where the system doesn't say.
double megabytesRead(pid_t process)
{
    std::ifstream figures("/proc/" + std::to_string(process) + "/io");
    const std::string name = "read_bytes:";
    for (std::string word; figures >> word;)
        if (word == name && figures >> word) return std::stod(word) / 1e6;
    return 0;
}

/// What keeps starts cold.
class Cold {
  public:
    /// False for one who isn't root.
    static bool dropAll()
    {
        sync();
        return static_cast<bool>(std::ofstream("/proc/sys/vm/drop_caches") << "3" << std::flush);
    }
    /// Notes the files that a process has mapped.
    void learn(pid_t process)
    {
        std::ifstream maps("/proc/" + std::to_string(process) + "/maps");
        for (std::string line; std::getline(maps, line);)
            if (const auto at = line.find('/'); at != std::string::npos) files_.insert(line.substr(at));
    }
    void dropThem() const
    {
        for (const std::string& path : files_) {
            const int file = open(path.c_str(), O_RDONLY | O_CLOEXEC);
            if (file < 0) continue;
            posix_fadvise(file, 0, 0, POSIX_FADV_DONTNEED);
            close(file);
        }
    }
    std::size_t count() const { return files_.size(); }

  private:
    std::set<std::string> files_;
};

struct Times {
    std::vector<double> window, frame, busy, read, picture;
};

/// Ends the frame's process, and waits until nothing is shown any more.
void end(pid_t owner)
{
    if (owner > 1) kill(owner, SIGTERM);
    const auto start = Clock::now();
    for (std::vector<Window> left{{}}; !left.empty(); usleep(1000)) {
        left.clear();
        collect(root, 1, left);
        if (owner <= 1 || since(start) < kLimit * 100) continue;
        std::fprintf(stderr, "process %d did not end\n", owner);
        kill(owner, SIGKILL);
    }
}

/// One start of a program.
void run(char** program, int until, Times& times, Cold& cold)
{
    const auto start = Clock::now();
    const pid_t child = fork();
    if (child == 0) {
        setpgid(0, 0);
        execvp(program[0], program);
        _exit(127);
    }
    std::optional<double> window, frame, picture;
    double ran = 0, read = 0;
    pid_t owner = 0;
    while (!frame || (until >= 0 && !picture)) {
        std::vector<Window> all;
        collect(root, 2, all);
        if (!all.empty() && !window) window = since(start);
        for (const Window& each : all) {
            if (each.width < 600 || each.height < 400) continue;
            const pid_t process = owner > 1 ? owner : ownerOf(each.id); // what a window manager puts around it has none
            if (!frame && process > 1 && colourAt(each.id, 3, 3) > 0) {
                frame = since(start);
                owner = process;
                ran = busy(owner);
                read = megabytesRead(owner);
            }
            if (until >= 0 && !picture && shows(each, until)) picture = since(start);
        }
        if (since(start) > kLimit * 1000) {
            std::fprintf(stderr, "%s: nothing came\n", program[0]);
            std::exit(1);
        }
        usleep(500);
    }
    times.window.push_back(*window);
    times.frame.push_back(*frame);
    times.busy.push_back(ran);
    times.read.push_back(read);
    cold.learn(owner);
    if (picture) times.picture.push_back(*picture);
    if (owner != child) waitpid(child, nullptr, 0); // it starts the editor, and would do so again without an answer
    end(owner);
    if (owner == child) waitpid(child, nullptr, 0);
    usleep(200'000); // for its helpers
}

std::string median(std::vector<double> values)
{
    if (values.empty()) return "-";
    std::ranges::sort(values);
    char text[32];
    std::snprintf(text, sizeof text, "%.0f", values[values.size() / 2]);
    return text;
}

} // namespace

int main(int argc, char** argv)
{
    int runs = 9, until = -1, next = 1;
    bool isCold = false;
    for (; next + 1 < argc && std::strncmp(argv[next], "--", 2) == 0; next += 2) {
        const std::string word = argv[next];
        if (word == "--runs") runs = std::max(1, std::atoi(argv[next + 1]));
        if (word == "--until") until = int(std::strtol(argv[next + 1], nullptr, 16));
        if (word == "--cold") isCold = std::strcmp(argv[next + 1], "yes") == 0;
    }
    std::vector<char**> programs;
    for (bool begins = true; next < argc; ++next) {
        if (begins) programs.push_back(argv + next);
        begins = std::strcmp(argv[next], "--") == 0;
        if (begins) argv[next] = nullptr;
    }
    display = xcb_connect(nullptr, nullptr);
    if (xcb_connection_has_error(display) || programs.empty()) {
        std::fprintf(stderr, "velara-start needs a display and a program\n");
        return 2;
    }
    root = xcb_setup_roots_iterator(xcb_get_setup(display)).data->root;
    std::vector<Times> times(programs.size());
    std::vector<Cold> cold(programs.size());
    bool dropsAll = isCold && Cold::dropAll();
    for (std::size_t p = 0; p < programs.size() && isCold && !dropsAll; ++p) { // to know the files
        Times warm;
        run(programs[p], until, warm, cold[p]);
    }
    for (int i = 0; i < runs; ++i)
        for (std::size_t p = 0; p < programs.size(); ++p) {
            if (isCold && !dropsAll) cold[p].dropThem();
            if (dropsAll) dropsAll = Cold::dropAll();
            run(programs[p], until, times[p], cold[p]);
        }
    if (isCold && !dropsAll) std::printf("cold but for what isn't mapped, or is by other programs; ");
    std::printf("%s\n", !isCold ? "warm" : dropsAll ? "cold" : (std::to_string(cold[0].count()) + " files").c_str());
    std::printf("%8s %8s %8s %8s %8s %8s  of %d starts\n", "window", "frame", "busy", "MB read", "picture", "least",
                runs);
    for (std::size_t p = 0; p < programs.size(); ++p)
        std::printf("%8s %8s %8s %8s %8s %8.0f  %s\n", median(times[p].window).c_str(), median(times[p].frame).c_str(),
                    median(times[p].busy).c_str(), median(times[p].read).c_str(), median(times[p].picture).c_str(),
                    *std::ranges::min_element(times[p].frame), programs[p][0]);
    xcb_disconnect(display);
    return 0;
}
