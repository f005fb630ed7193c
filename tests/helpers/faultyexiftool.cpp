// Stands in for ExifTool: runs the real one (FAULTY_REAL_EXIFTOOL) but spoils the next command
// holding "-o" as the line in FAULTY_CONTROL says (nothing, half, hang, flood, die), then empties
// that file. "half NAME" spoils only the command that writes the file NAME. Speaks
// "-stay_open True -@ -" as well as running one command.
#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <string>
#include <thread>
#include <vector>

#include <sys/wait.h>
#include <unistd.h>

namespace {

// The only escapes are for backslashes and line breaks, which no argument of the tests holds.
std::string decodeLine(const std::string &line)
{
    return line.rfind("#[CSTR]", 0) == 0 ? line.substr(7) : line;
}

int runReal(std::vector<std::string> arguments)
{
    if (const pid_t child = fork(); child != 0) {
        int status = 0;
        waitpid(child, &status, 0);
        return WIFEXITED(status) ? WEXITSTATUS(status) : 1;
    }
    arguments.insert(arguments.begin(), std::getenv("FAULTY_REAL_EXIFTOOL"));
    std::vector<char *> argv;
    for (std::string &argument : arguments)
        argv.push_back(argument.data());
    argv.push_back(nullptr);
    execv(argv[0], argv.data());
    _exit(127);
}

int run(const std::vector<std::string> &arguments)
{
    std::string output, fault;
    for (size_t i = 0; i + 1 < arguments.size(); ++i)
        output = arguments[i] == "-o" ? arguments[i + 1] : output;
    if (const char *control = std::getenv("FAULTY_CONTROL"); control && !output.empty()) {
        std::getline(std::ifstream(control), fault);
        const size_t space = fault.find(' ');
        const std::string source = arguments.back();
        if (space != std::string::npos) {
            const std::string name = fault.substr(space + 1);
            const bool matches = source.size() >= name.size() + 1 &&
                                 source.compare(source.size() - name.size(), name.size(), name) ==
                                     0 &&
                                 source[source.size() - name.size() - 1] == '/';
            fault = matches ? fault.substr(0, space) : std::string();
        }
        if (!fault.empty())
            std::ofstream(control, std::ios::trunc);
    }
    if (fault == "nothing")
        return 0;
    if (fault == "hang")
        std::this_thread::sleep_for(std::chrono::hours(1));
    if (fault == "flood") {
        for (int i = 0; i < 8 * 1024; ++i)
            std::cerr << std::string(1023, 'x') << '\n';
        std::cerr << "Error: flooded" << std::endl;
        return 1;
    }
    const int status = runReal(arguments);
    if (fault == "half" || fault == "die")
        std::filesystem::resize_file(output, std::filesystem::file_size(output) / 2);
    if (fault == "die")
        std::abort();
    return status;
}

} // namespace

int main(int argc, char **argv)
{
    std::vector<std::string> command(argv + 1, argv + argc);
    if (command.size() < 2 || command[0] != "-stay_open")
        return run(command);
    command.clear();
    std::string line, echo4;
    while (std::getline(std::cin, line)) {
        const std::string argument = decodeLine(line);
        if (argument == "-stay_open")
            return 0;
        if (argument == "-echo4")
            std::getline(std::cin, echo4);
        else if (argument.rfind("-execute", 0) != 0)
            command.push_back(argument);
        else {
            const std::string status = std::to_string(run(command));
            if (const size_t at = echo4.find("${status}"); at != std::string::npos)
                echo4.replace(at, 9, status);
            std::cerr << echo4 << '\n' << std::flush;
            std::cout << "{ready" << argument.substr(8) << "}\n" << std::flush;
            command.clear();
        }
    }
    return 0;
}
