"""Texts of desktop entries as packages, Flatpak and Snap install them."""

from pathlib import Path

# Characters that force an argument of Exec into double quotes, and those that need a backslash within them.
_RESERVED = set(" \t\n\"'\\><~|&;$*?#()`")
_ESCAPED_IN_QUOTES = set("\"`$\\")


def exec_word(text: str) -> str:
    """One argument as the Exec key takes it: quoted where necessary, percent signs doubled."""
    doubled = text.replace("%", "%%")
    if doubled and not _RESERVED & set(doubled):
        return doubled
    return '"' + "".join("\\" + each if each in _ESCAPED_IN_QUOTES else each for each in doubled) + '"'


def key_file_value(text: str) -> str:
    """A value as a key file takes it: the outer of the two layers of escaping."""
    return text.replace("\\", "\\\\").replace("\n", "\\n").replace("\t", "\\t")


def entry(name: str, command_line: str, **further: str) -> str:
    """An entry of a browser, with an action of its own so that readers must not take the wrong Exec."""
    keys = {
        "Version": "1.0",
        "Type": "Application",
        "Name": name,
        "Name[xx]": f"Not {name}",
        "GenericName": "Web Browser",
        "Exec": command_line,
        "StartupNotify": "true",
        "Terminal": "false",
        "Categories": "Network;WebBrowser;",
        "MimeType": "text/html;x-scheme-handler/http;x-scheme-handler/https;",
        "Actions": "new-window;",
    } | further
    lines = [f"{key}={key_file_value(value)}" for key, value in keys.items()]
    action = ["[Desktop Action new-window]", "Name=New Window", "Exec=/nonexistent/new-window --new-window"]
    return "\n".join(["[Desktop Entry]", *lines, "", *action, ""])


def native_command_line(program: Path, field_code: str = "%U") -> str:
    return f"{exec_word(str(program))} {field_code}"


def flatpak_words(flatpak: Path, command: str, application_id: str) -> list[str]:
    """What the exported Exec line starts, up to and including the application's id."""
    return [
        str(flatpak), "run", "--branch=stable", "--arch=x86_64", f"--command={command}", "--file-forwarding",
        application_id,
    ]


def flatpak_command_line(flatpak: Path, command: str, application_id: str, field_code: str = "%U") -> str:
    words = " ".join(exec_word(each) for each in flatpak_words(flatpak, command, application_id))
    return f"{words} @@u {field_code} @@"


def snap_words(desktop_file: Path, program: Path) -> list[str]:
    return ["env", f"BAMF_DESKTOP_FILE_HINT={desktop_file}", str(program)]


def snap_command_line(desktop_file: Path, program: Path, field_code: str = "%U") -> str:
    return " ".join(exec_word(each) for each in snap_words(desktop_file, program)) + f" {field_code}"
