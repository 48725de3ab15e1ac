// bench_table [--json FILE] [--markdown DOCUMENT [--table NAME]] RESULTS...
//
// Prints the one table of the results that the benchmark programs have written, and puts it into a
// JSON file and between the marker lines of a document where that is asked for.

#include "Machine.h"
#include "MeasuredTable.h"

#include <exception>
#include <fstream>
#include <iostream>
#include <iterator>
#include <stdexcept>
#include <string>

namespace {

std::string readFile(const std::string& path)
{
    std::ifstream file(path);
    if (!file) {
        throw std::runtime_error(path + " could not be read.");
    }
    return {std::istreambuf_iterator<char>(file), {}};
}

void writeFile(const std::string& path, const std::string& text)
{
    std::ofstream file(path);
    file << text;
    if (!file.flush()) {
        throw std::runtime_error(path + " could not be written.");
    }
}

void run(int argc, char** argv)
{
    bench::MeasuredTable table;
    std::string json;
    std::string document;
    std::string name;
    for (int i = 1; i < argc; ++i) {
        const std::string argument = argv[i];
        if (argument == "--json" && i + 1 < argc) {
            json = argv[++i];
        } else if (argument == "--markdown" && i + 1 < argc) {
            document = argv[++i];
        } else if (argument == "--table" && i + 1 < argc) {
            name = argv[++i];
        } else {
            const bench::MeasuredTable part = bench::readResults(readFile(argument));
            table.insert(table.end(), part.begin(), part.end());
        }
    }
    std::cout << bench::toText(table);
    if (!json.empty()) {
        writeFile(json, bench::toJson(table));
    }
    if (!document.empty()) {
        const std::string markdown = bench::toMarkdown(table, bench::machineText());
        writeFile(document, bench::withTable(readFile(document), markdown, name));
    }
}

} // namespace

int main(int argc, char** argv)
{
    try {
        run(argc, argv);
        return 0;
    } catch (const std::exception& error) {
        std::cerr << error.what() << '\n';
        return 1;
    }
}
