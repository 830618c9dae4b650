#ifndef SMBIOS_REPORT_H
#define SMBIOS_REPORT_H

/**
 * @file
 * What the firmware reports as text, for every language that can call C. This header is plain C89; its
 * library is vantor-shared-smbios-report-v2, which needs no other.
 *
 * Any thread may call any function at any time. No C++ exception leaves them.
 *
 * What a host must know of PowerShell, `fork` and its own end is the same as for the C++ classes: while
 * PowerShell hangs, "memory" and "processors" do not return; a child that was forked during a report must not
 * ask for one; threads that ask for reports are joined before `main` returns or the DLL is freed.
 */

#ifdef __cplusplus
extern "C" {
#endif

/**
 * Makes the report "memory", "processors" or "structures" of this machine: JSON in UTF-8, the same bytes that
 * `smbios-inspect NAME --json` prints. The first report of a process reads the firmware table; "memory" and
 * "processors" may wait for PowerShell.
 *
 * Returns 0, and `*text` is the report. Otherwise `*text` says in a sentence, in UTF-8, what went wrong, and
 * the status is the tool's: 1 when the machine exposes no table or it cannot be read, 2 when there is no
 * report of this name. `*text` ends with a NUL, is given back with `smbios_report_free`, and is NULL only
 * when memory has run out (status 1) or `text` is NULL itself (status 2).
 */
int smbios_report(const char* name, char** text);

/** Gives back what `smbios_report` gave. NULL is allowed. */
void smbios_report_free(char* text);

/** The library's version, "major.minor.patch"; never freed. */
const char* smbios_report_version(void);

#ifdef __cplusplus
}
#endif

#endif
