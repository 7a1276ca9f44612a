#include "zebhelptexts.h"

// clang-format off: one line here is one line of the help.

// What several keys say in the same words.
#define DEFAULT_PATH(ending, dirKey)                             \
  "If file-name is empty then default file path will be used:\n" \
  "    <default-dir>/<default-name>" ending                      \
  "\n"                                                           \
  "    <default-dir> : <exe-file-dir> or -" dirKey               \
  " key argument if any\n"                                       \
  "    <default-name>: <exe-file-name-without-extention> or -n key argument if any\n"
#define LAST_KEY(keys) "If several " keys " present in command line then only the last key is valid\n"
#define EVERY_FILE(key, done)                                                          \
  "If several " key " keys present in command line then all these files will be " done \
  "\n"                                                                                 \
  "    and filled\n"

const zebHelpText helpBatch = {"-B               = batch mode (no console input)\n",
                               "If both -B and -A key present in command line then -B key is performed\n"};

const zebHelpText helpAsk = {"-A<Timing|Params|Misalign|All> = set detail level of the console input\n",
                             "Timing  : adjust timing method at the very beginning\n"
                             "Params  : adjust common parameters for all tests at the very beginning\n"
                             "Misalign: adjust memory misalignment at the very beginning\n"
                             "All     : adjust all above-listed and adjust test parameters\n"
                             "          before each test running\n"
                             "Certain parameter may be adjusted from console only if it is not defined\n"
                             "    by -d key or in ini-file\n"
                             "If -A has no mode then -AAll mode is implemented\n"
                             "If several -A keys present in command line then all modes are combined\n"
                             "If both -A and -B key present in command line then -B key is performed\n"
                             "If neither of -A and -B key present in command line then\n"
                             "    -ATimingParams is performed\n"};

const zebHelpText helpData = {"-d<name>=<value> = set ZEB parameter value\n",
                              "Any parameter asked from console or written in ini-file may be set by -d key\n"
                              "Data set by -d option has the highest priority\n"
                              "-d key may be used several times in command line\n"};

const zebHelpText helpReadIni = {
    "-i[<file-name>]  = read ZEB parameters from ini-file\n",
    "Ini-file section [Zeb] contains common parameters for all tests\n"
    "Ini-file section [<func-name>] contains parameters for measurement of this function\n"
    "A parameter is read from ini-file only if it is not defined by -d key\n"
    "At the same time this parameter will not be asked from console\n" DEFAULT_PATH(".ini", "p")
        LAST_KEY("-i or -I keys")};

const zebHelpText helpWriteIni = {
    "-I[<file-name>]  = write ZEB parameters to ini-file and exit\n",
    "This key opens ini-file and put test parameters with default values\n"
    "If the parameter is already present in ini-file then ZEB doesn't overwrite it\n"
    "Ini-file section [Zeb] will contain common parameters for all tests\n"
    "Ini-file section [<func-name>] will contain parameters for measurement of this function\n" DEFAULT_PATH(
        ".ini", "p") LAST_KEY("-i or -I keys")};

const zebHelpText helpPressing = {"-P               = read tested function names from ini-file\n",
                                  "This key affects only if -i key is present in command line\n"
                                  "All functions present in ini-file as section names will be measured\n"
                                  "Other functions will not be measured\n"};

const zebHelpText helpNewListing = {"-o[<file-name>]  = create txt-file and write console output\n",
                                    DEFAULT_PATH(".txt", "l") EVERY_FILE("-o", "created")};

const zebHelpText helpAddListing = {"-O[<file-name>]  = add console output to txt-file\n",
                                    DEFAULT_PATH(".txt", "l") EVERY_FILE("-O", "opened")};

const zebHelpText helpLevel = {"-L<ERR|WARN|PERF|INFO|TRACE|DATA> = set detail level of the console output\n",
                               "ERR  : output errors\n"
                               "WARN : output errors & warnings\n"
                               "PERF : output errors & warnings & performance for each parameter set\n"
                               "INFO : output errors & warnings & performance for each parameter set &\n"
                               "       detailed course of performance measurement\n"
                               "TRACE: output errors & warnings & performance for each parameter set &\n"
                               "       ZEB function call tracing\n"
                               "DATA : output errors & warnings & performance for each parameter set &\n"
                               "       vectors data before and after qor function call\n"
                               "If several -L keys present in command line then all modes are combined\n"};

const zebHelpText helpNewTable = {"-r[<file-name>]  = create csv-file and write ZEB results\n",
                                  "This key creates table file for performance results\n" DEFAULT_PATH(
                                      ".csv", "l") EVERY_FILE("-r", "created")};

const zebHelpText helpAddTable = {"-R[<file-name>]  = add ZEB results to csv-file\n",
                                  "This key adds for performance results to table file\n" DEFAULT_PATH(
                                      ".csv", "l") EVERY_FILE("-R", "opened")};

const zebHelpText helpNameTable = {
    "-q[<file-name>]  = create csv-file (*_name.csv is default) and write function parameter name lines\n"
    "-q+              = add function parameter name lines to ZEB results table file\n",
    DEFAULT_PATH("_name.csv", "l") EVERY_FILE("-q[]", "created")};

const zebHelpText helpNameExit = {"-Q               = exit after function parameter name table creation\n",
                                  DEFAULT_PATH("_name.csv", "l")};

const zebHelpText helpNewSummary = {
    "-u[<file-name>]  = create csv-file and write summary table ('_sum' is added to default title name)\n",
    DEFAULT_PATH("_sum.csv", "l") EVERY_FILE("-u", "created")};

const zebHelpText helpAddSummary = {
    "-U[<file-name>]  = add summary table to csv-file ('_sum' is added to default title name)\n",
    DEFAULT_PATH("_sum.csv", "l") EVERY_FILE("-U", "opened")};

const zebHelpText helpSignal = {"-g[<file-name>]  = create signal file at the end of the whole testing\n",
                                DEFAULT_PATH(".end", "l") LAST_KEY("-g keys")};

const zebHelpText helpDefName = {"-n<title-name>   = default title name for ini-file and output files\n",
                                 "This key sets default file name for input and output files defined by \n"
                                 "    -i, -I, -o, -O, -r, -R, -u, -U, -g, -q keys\n" LAST_KEY("-n keys")};

const zebHelpText helpInDir = {
    "-p<dir-name>     = default directory for input files i.e. ini & test data files\n",
    "This key sets default file directory for input files defined by -i, -I keys\n"
    "    and also for data files opened in a test by i_stream class\n" LAST_KEY("-p keys")};

const zebHelpText helpOutDir = {"-l<dir-name>     = default directory for output files (listings)\n",
                                "This key sets default file directory for output files defined by \n"
                                "    -o, -O, -r, -R, -u, -U, -g, -q keys\n" LAST_KEY("-l keys")};

const zebHelpText helpFunction = {
    "-f < or-pattern> = run tests for functions with pattern in name\n"
    "-f-<not-pattern> = don't run tests for functions with pattern in name\n"
    "-f+<and-pattern> = run only tests for functions with pattern in name\n"
    "-f=< eq-pattern> = run tests for function with this full name\n",
    "Several -f keys may present in command line.\n"
    "Then function list is created such a way:\n"
    "    At first all functions defined by -f keys are combined in the list\n"
    "    Then functions defined by -f- keys are excluded from the list\n"
    "    Then functions that is not defined my -f+ keys are excluded from the list\n"
    "    Then functions defined my -f= keys are added to the list\n"};

const zebHelpText helpTest = {"-t[-/+/=]<patrn> = run (don't run) tests with pattern in test name\n",
                              "Several -t keys may present in command line.\n"
                              "Then test list is created such a way:\n"
                              "    At first all tests defined by -t keys are combined in the list\n"
                              "    Then tests defined by -t- keys are excluded from the list\n"
                              "    Then tests that is not defined my -t+ keys are excluded from the list\n"
                              "    Then tests defined my -t= keys are added to the list\n"};

const zebHelpText helpStart = {"-F<func-name>    = start testing from function with func-name full name\n",
                               LAST_KEY("-F keys")};

const zebHelpText helpPriority = {
    "-Y<HIGH|NORMAL>  = set high or normal process prioritY (normal is default)\n", LAST_KEY("-Y keys")};

const zebHelpText helpHot = {
    "-H[ONLY]         = add 'Interest' column to table file [and run only hot tests]\n",
    "If both -H & -HO keys present in command line then only the last key is valid\n"};

const zebHelpText helpCpu = {"-T[<cpu-name>]   = call qorInitStaticCpu( qorCpu<cpu-name> )\n",
                             "This key works only if you link qor*merged libraries\n"
                             "    and include <qorcore.h> before <mok.h> in your test file.\n"
                             "To run QOR code optimized for specific processor enter following {cpu-name}:\n"
                             "\t" LAST_KEY("-T keys")};

const zebHelpText helpThreads = {
    "-N[<num-threads>]= call qorSetNumThreads( <num-threads> )\n",
    "This key works only if you link qor* libraries\n"
    "    and include <qorcore.h> before <mok.h> in your test file.\n" LAST_KEY("-N keys")};

const zebHelpText helpSetUse = {"-SU              = measure functions with data set & use\n",
                                "This option should be used to prove parallelize function advantage\n"
                                "Test does not show clear function performance\n"};

const zebHelpText helpCache = {
    "-C               = run tests with data in cache and out of cache (if that is supported by test)\n",
    "This option should be used to clarify performance difference between in-cache and out-of-cache data\n"
    "Not all tests support this option\n"};

const zebHelpText helpSort = {
    "-s[-]            = sort or don't sort functions (sort mode is default)\n",
    "If both -s & -s- keys present in command line then only the last key is valid\n"};

const zebHelpText helpEnumerate = {"-e               = enumerate tests and exit\n", ""};

const zebHelpText helpVersion = {"-v               = type the version number of the Zeb and exit\n", ""};

const zebHelpText helpHelp = {
    "-h               = type short help and exit\n"
    "-hh              = type extended help and exit\n"
    "-h<key>          = type extended help for the key and exit\n",
    LAST_KEY("-h")};

const zebHelpText helpHiddenHelp = {
    "",
    "-?               = type short help with hidden keys and exit\n"
    "-??              = type extended help with hidden keys and exit\n"
    "-?<key>          = type extended help for the key and exit\n" LAST_KEY("-? keys")};
