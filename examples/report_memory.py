import ctypes
import sys

library = ctypes.CDLL("libvantor-shared-smbios-report-v2.so.2")
text = ctypes.c_char_p()
status = library.smbios_report(b"memory", ctypes.byref(text))
if status != 0:
    sys.exit(text.value.decode())
print(text.value.decode(), end="")
library.smbios_report_free(text)
