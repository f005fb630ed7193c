// A stand-in for ExifTool that runs the real one (path in FAULTY_REAL_EXIFTOOL) but can spoil
// the next write command (one with "-o") as the first line of the file FAULTY_CONTROL says,
// consuming that line:
//   nothing  exit 0 having written nothing
//   half     let ExifTool write, then cut its output to half and exit 0
//   hang     never answer
//   flood    write megabytes to standard error, then fail
//   die      write half a file, then abort
// Speaks the "-stay_open True -@ -" protocol as well as running one command.
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <iostream>
#include <sstream>
#include <string>
#include <thread>
#include <vector>

#include <sys/wait.h>
#include <unistd.h>

namespace {

std::string decodeLine(const std::string &line)
{
    const std::string tag = "#[CSTR]";
    if (line.compare(0, tag.size(), tag) != 0)
        return line;
    std::string argument;
    for (size_t i = tag.size(); i < line.size(); ++i) {
        if (line[i] != '\\' || i + 1 == line.size()) {
            argument += line[i];
            continue;
        }
        const char next = line[++i];
        if (next == 'n')
            argument += '\n';
        else if (next == 'r')
            argument += '\r';
        else if (next == 't')
            argument += '\t';
        else if (next >= '0' && next <= '7') {
            int value = next - '0';
            for (int k = 0;
                 k < 2 && i + 1 < line.size() && line[i + 1] >= '0' && line[i + 1] <= '7'; ++k)
                value = value * 8 + (line[++i] - '0');
            argument += char(value);
        } else
            argument += next;
    }
    return argument;
}

std::string takeFault()
{
    const char *control = std::getenv("FAULTY_CONTROL");
    if (!control)
        return {};
    std::ifstream in(control);
    std::string first, rest, line;
    std::getline(in, first);
    while (std::getline(in, line))
        rest += line + '\n';
    in.close();
    std::ofstream(control, std::ios::trunc) << rest;
    return first;
}

int runReal(const std::vector<std::string> &arguments)
{
    const char *real = std::getenv("FAULTY_REAL_EXIFTOOL");
    if (!real)
        return 2;
    const pid_t child = fork();
    if (child == 0) {
        std::vector<char *> argv{const_cast<char *>(real)};
        for (const std::string &argument : arguments)
            argv.push_back(const_cast<char *>(argument.c_str()));
        argv.push_back(nullptr);
        execv(real, argv.data());
        _exit(127);
    }
    int status = 0;
    waitpid(child, &status, 0);
    return WIFEXITED(status) ? WEXITSTATUS(status) : 1;
}

void truncateToHalf(const std::string &path)
{
    std::ifstream in(path, std::ios::binary);
    std::stringstream content;
    content << in.rdbuf();
    const std::string bytes = content.str();
    std::ofstream(path, std::ios::binary | std::ios::trunc) << bytes.substr(0, bytes.size() / 2);
}

int run(const std::vector<std::string> &arguments)
{
    std::string output;
    for (size_t i = 0; i + 1 < arguments.size(); ++i) {
        if (arguments[i] == "-o")
            output = arguments[i + 1];
    }
    const std::string fault = output.empty() ? std::string() : takeFault();
    if (fault == "nothing")
        return 0;
    if (fault == "hang")
        std::this_thread::sleep_for(std::chrono::hours(1));
    if (fault == "flood") {
        const std::string line(1023, 'x');
        for (int i = 0; i < 8 * 1024; ++i)
            std::cerr << line << '\n';
        std::cerr << "Error: flooded" << std::endl;
        return 1;
    }
    const int status = runReal(arguments);
    if (fault == "half" || fault == "die") {
        truncateToHalf(output);
        if (fault == "die")
            std::abort();
    }
    return status;
}

int stayOpen()
{
    std::vector<std::string> command;
    std::string echo4;
    std::string line;
    while (std::getline(std::cin, line)) {
        const std::string argument = decodeLine(line);
        if (argument == "-stay_open") {
            std::getline(std::cin, line);
            return 0;
        }
        if (argument == "-echo4") {
            std::getline(std::cin, echo4);
            continue;
        }
        if (argument.rfind("-execute", 0) != 0) {
            command.push_back(argument);
            continue;
        }
        const int status = run(command);
        const size_t at = echo4.find("${status}");
        if (at != std::string::npos)
            echo4.replace(at, 9, std::to_string(status));
        std::cerr << echo4 << '\n' << std::flush;
        std::cout << "{ready" << argument.substr(8) << "}\n" << std::flush;
        command.clear();
        echo4.clear();
    }
    return 0;
}

} // namespace

int main(int argc, char **argv)
{
    const std::vector<std::string> arguments(argv + 1, argv + argc);
    if (arguments.size() >= 2 && arguments[0] == "-stay_open" && arguments[1] == "True")
        return stayOpen();
    return run(arguments);
}
