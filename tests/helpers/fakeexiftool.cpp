// A stand-in for ExifTool that does what its arguments say, in order:
//   out=TEXT   prints TEXT and a line break on standard output
//   err=TEXT   the same on standard error
//   exit=N     makes N the exit status
//   pid        prints its process id on standard output
//   hang       sleeps for good
//   crash      aborts
// Run with "-stay_open True -@ -", it reads commands from standard input the way ExifTool does.
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <iostream>
#include <string>
#include <thread>
#include <vector>

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
        argument += next == 'n' ? '\n' : next == 'r' ? '\r' : next;
    }
    return argument;
}

int run(const std::vector<std::string> &arguments)
{
    int status = 0;
    for (const std::string &argument : arguments) {
        if (argument.rfind("out=", 0) == 0) {
            std::cout << argument.substr(4) << '\n' << std::flush;
        } else if (argument.rfind("err=", 0) == 0) {
            std::cerr << argument.substr(4) << '\n' << std::flush;
        } else if (argument.rfind("exit=", 0) == 0) {
            status = std::atoi(argument.c_str() + 5);
        } else if (argument == "pid") {
            std::cout << getpid() << '\n' << std::flush;
        } else if (argument == "hang") {
            std::this_thread::sleep_for(std::chrono::hours(1));
        } else if (argument == "crash") {
            std::abort();
        }
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
