#!/usr/bin/env bash
# test-checks.sh CHECK: plants faults in a little project and expects scripts/check-CHECK to name each of them.
set -euo pipefail

check=check-$1
source_root=$(cd "$(dirname "$0")/../.." && pwd)
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
failed=0

# A clean project of two floors.
lay_project() {
    rm -rf "$work/project"
    mkdir -p "$work/project/src/low" "$work/project/src/high"
    cp -r "$source_root/scripts" "$source_root/.clang-format" "$work/project"
    cd "$work/project"
    printf 'add_subdirectory(low)\nadd_subdirectory(high)\n' >src/CMakeLists.txt
    printf 'lingomat_library(low\n  HEADERS Low.h\n  USES Qt6::Core)\n' >src/low/CMakeLists.txt
    printf 'lingomat_library(high\n  HEADERS High.h\n  USES low)\n' >src/high/CMakeLists.txt
    printf 'int low();\n' >src/low/Low.h
    printf '#include "Low.h"\n\nint high();\n' >src/high/High.h
}

passes() { # WHAT
    if ! output=$("scripts/$check" 2>&1); then
        printf '%s complains about %s:\n%s\n' "$check" "$1" "$output"
        failed=1
    fi
}

complains() { # WHAT EXPECTED: the text that the complaint has to hold
    if output=$("scripts/$check" 2>&1); then
        printf '%s overlooks %s\n' "$check" "$1"
        failed=1
    elif [[ $output != *"$2"* ]]; then
        printf '%s, about %s, does not say "%s" but:\n%s\n' "$check" "$1" "$2" "$output"
        failed=1
    fi
}

# One line of code in the higher floor's source file.
code_line() { printf '%s\n' "$1" >src/high/High.cpp; }

test_format() {
    code_line 'int   high( );'
    complains "wide spaces" src/high/High.cpp:1
    scripts/check-format --fix
    passes "what it has put in shape itself"
}

test_layers() {
    printf '\n#include "High.h"\n' >src/low/Low.cpp
    complains "an include that points up" src/low/Low.cpp:2
    lay_project
    printf 'lingomat_library(low\n  HEADERS Low.h\n  USES\n    high)\n' >src/low/CMakeLists.txt
    complains "a use of a higher floor" src/low/CMakeLists.txt:4
    lay_project
    printf 'lingomat_library(low HEADERS Low.h PRIVATE_USES high) # comment\n' >src/low/CMakeLists.txt
    complains "a private use of a higher floor" src/low/CMakeLists.txt:1
    lay_project
    code_line '#include "../low/Low.h"'
    complains "an include with a path" src/high/High.cpp:1
    lay_project
    code_line '#include <sqlite3.h>'
    complains "SQLite outside the engine" src/high/High.cpp:1
    lay_project
    printf 'int low();\n' >src/high/Low.h
    complains "two headers of one name" Low.h:1
    lay_project
    mkdir src/hidden
    touch src/hidden/CMakeLists.txt
    complains "a folder that is not built" src/hidden/CMakeLists.txt
    lay_project
    rm src/high/CMakeLists.txt
    complains "a folder without build rules" src/high
}

test_prompts() {
    local -A faults=(
        ['    QMessageBox::warning(this, title, text);']="message box"
        ['    QMessageBox box(this);']="message box"
        ['    auto* box = new QMessageBox;']="message box"
        ['    path = QFileDialog::getOpenFileName(this);']="Prompts::openFile"
        ['    name = QInputDialog::getText(this, title, label);']="Prompts::exec"
        ['    QPrintDialog dialog(&printer, this);']="PrinterChooser"
        ['    dialog.exec();']="Prompts::exec"
        ['    menu->exec(position);']="popup"
        ['    connect(button, SIGNAL(clicked()), this, SLOT(accept()));']="member function"
    )
    local line
    for line in "${!faults[@]}"; do
        code_line "$line"
        complains "\"$line\"" "${faults[$line]}"
        complains "\"$line\"" src/high/High.cpp:1
    done
    local harmless=(
        '    // QMessageBox::warning(this, title, text);'
        '    if (answer == QMessageBox::Yes)'
        '    m_context.prompts.exec(*this);'
        '    context().prompts().exec(form);'
        '    return QApplication::exec();'
    )
    for line in "${harmless[@]}"; do
        code_line "$line"
        passes "\"$line\""
    done
    rm src/high/High.cpp
    mkdir src/ui
    printf '    return dialog.exec();\n' >src/ui/ScreenPrompts.cpp
    passes "the one place that shows dialogs"
}

test_size() {
    yes '// a line' | head -n 600 >src/high/High.cpp || true
    passes "a file of 600 lines"
    yes '// a line' | head -n 601 >src/high/High.cpp || true
    complains "a file of 601 lines" src/high/High.cpp
}

lay_project
passes "a clean project"
"test_$1"
exit "$failed"
