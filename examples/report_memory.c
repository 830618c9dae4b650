#include <smbios/report.h>
#include <stdio.h>

int main(void) {
    char* text = NULL;
    const int status = smbios_report("memory", &text);
    if (status == 0) {
        fputs(text, stdout);
    } else {
        fprintf(stderr, "%s\n", text ? text : "out of memory");
    }
    smbios_report_free(text);
    return status;
}
