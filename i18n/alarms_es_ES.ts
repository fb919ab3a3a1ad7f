<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es_ES">
<context>
    <name>Alarm Service</name>
    <message>
        <source>0x0</source>
        <translation>Ninguna alarma.</translation>
    </message>
    <message>
        <source>0x3067fb9f</source>
        <translation>Todavía falta una parte del equipo.</translation>
    </message>
    <message>
        <source>0x3067fba2</source>
        <translation>Cubierta de la unidad de entrada abierta.</translation>
    </message>
    <message>
        <source>0x3101000f</source>
        <translation>Electrónica de control defectuosa. Avisar al SAT.</translation>
    </message>
    <message>
        <source>0x31010011</source>
        <translation>Electrónica de control demasiado caliente.</translation>
    </message>
    <message>
        <source>0x31010014</source>
        <translation>Tensión de alimentación fuera de rango.</translation>
    </message>
    <message>
        <source>0x31020007</source>
        <translation>Sin conexión con el control del motor.</translation>
    </message>
    <message>
        <source>0x3102000C</source>
        <translation>Corriente del motor demasiado baja, revisar el motor.</translation>
    </message>
    <message>
        <source>0x3102000b</source>
        <translation>Sobrecarga del motor.</translation>
    </message>
    <message>
        <source>0x31020011</source>
        <translation>Motor demasiado caliente.</translation>
    </message>
    <message>
        <source>0x31020013</source>
        <translation>El motor no vuelve a arrancar.</translation>
    </message>
    <message>
        <source>0x31020014</source>
        <translation>Falta una fase del motor.</translation>
    </message>
    <message>
        <source>0x31020015</source>
        <translation>Cortocircuito del motor.</translation>
    </message>
    <message>
        <source>0x31020018</source>
        <translation>Motor bloqueado.</translation>
    </message>
    <message>
        <source>0x31020019</source>
        <translation>El motor gira en sentido incorrecto.</translation>
    </message>
    <message>
        <source>0x3102001a</source>
        <translation>Marcha de emergencia del motor fallida. Avisar al SAT.</translation>
    </message>
    <message>
        <source>0x31020022</source>
        <translation>Parámetros del motor no válidos.</translation>
    </message>
    <message>
        <source>0x31040004</source>
        <translation>Fallo del sensor de presión. Avisar al SAT.</translation>
    </message>
    <message>
        <source>0x31040007</source>
        <translation>Sin señal del sensor de presión.</translation>
    </message>
    <message>
        <source>0x3104000b</source>
        <translation>Presión de aire demasiado alta. Equipo apagado.</translation>
    </message>
    <message>
        <source>0x310f000c</source>
        <translation>Presión de aire demasiado baja. Tratamiento imposible.</translation>
    </message>
    <message>
        <source>0x311c0006</source>
        <translation>Unidad de aspiración obstruida. Revisar las tuberías.</translation>
    </message>
    <message>
        <source>0x311c000b</source>
        <translation>Unidad de aspiración: vacío demasiado alto.</translation>
    </message>
    <message>
        <source>0x311c000c</source>
        <translation>Unidad de aspiración: vacío demasiado bajo.</translation>
    </message>
    <message>
        <source>0x311c000f</source>
        <translation>Unidad de aspiración: valor de vacío no plausible.</translation>
    </message>
    <message>
        <source>0x311c0011</source>
        <translation>Unidad de aspiración demasiado caliente. Dejar enfriar.</translation>
    </message>
    <message>
        <source>0x3204000a</source>
        <translation>Esterilización fallida: vacío no alcanzado.</translation>
    </message>
    <message>
        <source>0x3204000f</source>
        <translation>Esterilización fallida: temperatura y presión no concuerdan.</translation>
    </message>
    <message>
        <source>0x32040017</source>
        <translation>Esterilización fallida: tiempo insuficiente.</translation>
    </message>
    <message>
        <source>0x3207001e</source>
        <translation>Impresora: rollo de etiquetas incorrecto.</translation>
    </message>
    <message>
        <source>0x32080007</source>
        <translation>Sin conexión con la pantalla.</translation>
    </message>
    <message>
        <source>0x32090007</source>
        <translation>Sin conexión con el separador de amalgama.</translation>
    </message>
    <message>
        <source>0x320d001f</source>
        <translation>Separador de amalgama: recipiente colector lleno. Cambiarlo.</translation>
    </message>
    <message>
        <source>0x320e0022</source>
        <translation>Actualización del software fallida.</translation>
    </message>
    <message>
        <source>0x32120022</source>
        <translation>Configuración de red no válida.</translation>
    </message>
    <message>
        <source>0x32130022</source>
        <translation>Sincronización horaria fallida.</translation>
    </message>
    <message>
        <source>0x3215000f</source>
        <translation>Escáner de placas: potencia láser anómala. Avisar al SAT.</translation>
    </message>
    <message>
        <source>0x32150017</source>
        <translation>Escáner de placas: tiempo de lectura excedido.</translation>
    </message>
    <message>
        <source>0x321b001e</source>
        <translation>Programa no permitido para esta carga.</translation>
    </message>
    <message>
        <source>0x321c000f</source>
        <translation>Unidad de aspiración: prueba de caudal fallida.</translation>
    </message>
    <message>
        <source>0x321f0022</source>
        <translation>No se puede leer la memoria USB.</translation>
    </message>
    <message>
        <source>0x32210007</source>
        <translation>Conexión con el servidor de la clínica perdida.</translation>
    </message>
    <message>
        <source>0x32230022</source>
        <translation>Acceso bloqueado tras demasiados intentos fallidos.</translation>
    </message>
    <message>
        <source>0x32240022</source>
        <translation>Licencia del software no válida.</translation>
    </message>
    <message>
        <source>0x32250022</source>
        <translation>Datos de calibración no válidos.</translation>
    </message>
    <message>
        <source>0x32268010</source>
        <translation>Quillon Pulse: conexión fallida.</translation>
    </message>
    <message>
        <source>0x32278010</source>
        <translation>Quillon Pulse: registro fallido. Revisar la red y el código.</translation>
    </message>
    <message>
        <source>0x322d0011</source>
        <translation>Generador de vapor demasiado caliente.</translation>
    </message>
    <message>
        <source>0x322e0023</source>
        <translation>Intervalo de mantenimiento superado. No usar sin revisión.</translation>
    </message>
    <message>
        <source>0x322f0009</source>
        <translation>Tapa del recipiente colector abierta.</translation>
    </message>
    <message>
        <source>0x322f001d</source>
        <translation>Falta el recipiente colector.</translation>
    </message>
    <message>
        <source>0x33010009</source>
        <translation>Puerta abierta.</translation>
    </message>
    <message>
        <source>0x3301000d</source>
        <translation>Cierre de la puerta atascado. No forzar la puerta.</translation>
    </message>
    <message>
        <source>0x33030006</source>
        <translation>Filtro obstruido. Cambiar el filtro.</translation>
    </message>
    <message>
        <source>0x33040006</source>
        <translation>Desagüe del separador de amalgama obstruido.</translation>
    </message>
    <message>
        <source>0x3401001d</source>
        <translation>Sin suministro de agua. Abrir la válvula de agua.</translation>
    </message>
    <message>
        <source>0x3404001e</source>
        <translation>Se ha colocado un desinfectante incorrecto.</translation>
    </message>
    <message>
        <source>0x34050021</source>
        <translation>La bomba dosificadora no suministra desinfectante.</translation>
    </message>
    <message>
        <source>0x4068d8e5</source>
        <translation>El sistema de transporte requiere mantenimiento.</translation>
    </message>
    <message>
        <source>0x41010011</source>
        <translation>Electrónica de control caliente. Revisar la ventilación.</translation>
    </message>
    <message>
        <source>0x41010012</source>
        <translation>Se ha interrumpido la alimentación eléctrica.</translation>
    </message>
    <message>
        <source>0x41010014</source>
        <translation>Tensión de alimentación inestable.</translation>
    </message>
    <message>
        <source>0x4101001b</source>
        <translation>Reloj interno restablecido. Ajustar la fecha y la hora.</translation>
    </message>
    <message>
        <source>0x41020011</source>
        <translation>Temperatura del motor elevada.</translation>
    </message>
    <message>
        <source>0x41020013</source>
        <translation>El motor ha vuelto a arrancar varias veces.</translation>
    </message>
    <message>
        <source>0x4102001a</source>
        <translation>Marcha de emergencia del motor.</translation>
    </message>
    <message>
        <source>0x4104000b</source>
        <translation>Presión de aire alta.</translation>
    </message>
    <message>
        <source>0x410f000c</source>
        <translation>Presión de aire baja. Buscar fugas en las tuberías.</translation>
    </message>
    <message>
        <source>0x41120007</source>
        <translation>Sin señal del sensor de humedad del secador.</translation>
    </message>
    <message>
        <source>0x411c0011</source>
        <translation>Unidad de aspiración: temperatura elevada.</translation>
    </message>
    <message>
        <source>0x4122000b</source>
        <translation>Compresor: tiempo de marcha alto.</translation>
    </message>
    <message>
        <source>0x41230013</source>
        <translation>El secador se regenera con demasiada frecuencia.</translation>
    </message>
    <message>
        <source>0x4201000a</source>
        <translation>Esterilizador: el vacío se genera lentamente.</translation>
    </message>
    <message>
        <source>0x4201000f</source>
        <translation>Esterilizador: presión de cámara distinta de la consigna.</translation>
    </message>
    <message>
        <source>0x42010024</source>
        <translation>Esterilizador: prueba de vacío atrasada.</translation>
    </message>
    <message>
        <source>0x42020009</source>
        <translation>Tapa del depósito de agua no cerrada.</translation>
    </message>
    <message>
        <source>0x4207000d</source>
        <translation>Impresora: atasco de papel.</translation>
    </message>
    <message>
        <source>0x420c0010</source>
        <translation>Mantenimiento atrasado. Concertar una cita con el SAT.</translation>
    </message>
    <message>
        <source>0x4211001b</source>
        <translation>Ajustes de fábrica restablecidos.</translation>
    </message>
    <message>
        <source>0x42140022</source>
        <translation>Exportación de informes fallida. Revisar la carpeta.</translation>
    </message>
    <message>
        <source>0x42190022</source>
        <translation>No se ha podido enviar el aviso por correo electrónico.</translation>
    </message>
    <message>
        <source>0x42288010</source>
        <translation>Quillon Pulse: la autorización de acceso caduca pronto.</translation>
    </message>
    <message>
        <source>0x42298010</source>
        <translation>Quillon Pulse: no se transmiten datos desde ayer.</translation>
    </message>
    <message>
        <source>0x422c8010</source>
        <translation>Copia de seguridad interrumpida.</translation>
    </message>
    <message>
        <source>0x43010009</source>
        <translation>La puerta se ha abierto antes de finalizar el programa.</translation>
    </message>
    <message>
        <source>0x4301000d</source>
        <translation>Cierre de la puerta duro. Limpiar la junta de la puerta.</translation>
    </message>
    <message>
        <source>0x43030006</source>
        <translation>Filtro sucio.</translation>
    </message>
    <message>
        <source>0x4402001d</source>
        <translation>Falta desinfectante de aspiración. Colocar botella nueva.</translation>
    </message>
    <message>
        <source>0x4403001f</source>
        <translation>Depósito de aguas residuales lleno. Vaciar el depósito.</translation>
    </message>
    <message>
        <source>0x44060012</source>
        <translation>Tiempo de actuación interrumpido.</translation>
    </message>
    <message>
        <source>0x45000004</source>
        <translation>¡Fallo del sensor de salida!</translation>
    </message>
    <message>
        <source>0x48240028</source>
        <translation>El archivo no corresponde a este tipo de equipo.</translation>
    </message>
    <message>
        <source>0x48240029</source>
        <translation>Importación de datos finalizada con advertencias.</translation>
    </message>
    <message>
        <source>0x4824002a</source>
        <translation>Importación de datos cancelada por el usuario.</translation>
    </message>
    <message>
        <source>0x48240100</source>
        <translation>El archivo cargado está vacío.</translation>
    </message>
    <message>
        <source>0x48240101</source>
        <translation>El encabezado del equipo tiene un formato no válido.</translation>
    </message>
    <message>
        <source>0x48240102</source>
        <translation>El encabezado del equipo no contiene ni REF ni DEV_SN.</translation>
    </message>
    <message>
        <source>0x48240103</source>
        <translation>La REF o el DEV_SN no coincide con el equipo.</translation>
    </message>
    <message>
        <source>0x48240104</source>
        <translation>Importación de datos incompleta.</translation>
    </message>
    <message>
        <source>0x48240200</source>
        <translation>Archivo de un software más reciente. Actualizar el equipo.</translation>
    </message>
    <message>
        <source>0x48250025</source>
        <translation>Exportación de datos fallida.</translation>
    </message>
    <message>
        <source>0x51010013</source>
        <translation>Reinicio inesperado de la electrónica de control.</translation>
    </message>
    <message>
        <source>0x5104000b</source>
        <translation>Presión de aire brevemente superior a la de parada.</translation>
    </message>
    <message>
        <source>0x510f000c</source>
        <translation>Presión de aire brevemente inferior a la de arranque.</translation>
    </message>
    <message>
        <source>0x5122000B</source>
        <translation>Compresor: tiempo de marcha muy alto. Revisar el sistema.</translation>
    </message>
    <message>
        <source>0x51230013</source>
        <translation>Regeneración del secador reiniciada.</translation>
    </message>
    <message>
        <source>0x52048009</source>
        <translation>Esterilización cancelada por el usuario. Carga no estéril.</translation>
    </message>
    <message>
        <source>0x52058001</source>
        <translation>Esterilización iniciada.</translation>
    </message>
    <message>
        <source>0x52068001</source>
        <translation>Prueba de vacío iniciada.</translation>
    </message>
    <message>
        <source>0x520a0010</source>
        <translation>Mantenimiento anual próximo.</translation>
    </message>
    <message>
        <source>0x520b0010</source>
        <translation>Validación del esterilizador pendiente.</translation>
    </message>
    <message>
        <source>0x520d001f</source>
        <translation>Separador de amalgama: recipiente colector casi lleno.</translation>
    </message>
    <message>
        <source>0x520e8001</source>
        <translation>Actualización del software disponible.</translation>
    </message>
    <message>
        <source>0x520e8006</source>
        <translation>Actualización del software instalada.</translation>
    </message>
    <message>
        <source>0x52100023</source>
        <translation>Calendario: cita prevista para hoy.</translation>
    </message>
    <message>
        <source>0x52118003</source>
        <translation>Ajustes modificados.</translation>
    </message>
    <message>
        <source>0x52148001</source>
        <translation>Exportación de informes iniciada.</translation>
    </message>
    <message>
        <source>0x52148006</source>
        <translation>Exportación de informes finalizada.</translation>
    </message>
    <message>
        <source>0x5214800a</source>
        <translation>Exportación de informes aplazada: carpeta no accesible.</translation>
    </message>
    <message>
        <source>0x52148010</source>
        <translation>Exportación de informes interrumpida.</translation>
    </message>
    <message>
        <source>0x521d8012</source>
        <translation>Modo nocturno activo.</translation>
    </message>
    <message>
        <source>0x521e8006</source>
        <translation>Autocomprobación finalizada. Ver el informe.</translation>
    </message>
    <message>
        <source>0x522a8010</source>
        <translation>Acceso remoto del SAT activado.</translation>
    </message>
    <message>
        <source>0x522b8010</source>
        <translation>Quillon Pulse: equipo eliminado de la cuenta.</translation>
    </message>
    <message>
        <source>0x522c8001</source>
        <translation>Copia de seguridad iniciada.</translation>
    </message>
    <message>
        <source>0x522c8006</source>
        <translation>Copia de seguridad finalizada.</translation>
    </message>
    <message>
        <source>0x52300011</source>
        <translation>Temperatura ambiente elevada. Revisar la ventilación.</translation>
    </message>
    <message>
        <source>0x53030006</source>
        <translation>Cambio de filtro próximo.</translation>
    </message>
    <message>
        <source>0x5305000b</source>
        <translation>Conductividad del agua elevada.</translation>
    </message>
    <message>
        <source>0x54060020</source>
        <translation>Desinfección pendiente.</translation>
    </message>
    <message>
        <source>0x55000003</source>
        <translation>¡Velocidad incorrecta!</translation>
    </message>
    <message>
        <source>0x61010013</source>
        <translation>Electrónica de control reiniciada.</translation>
    </message>
    <message>
        <source>0x61258001</source>
        <translation>Calibración iniciada.</translation>
    </message>
    <message>
        <source>0x6207000e</source>
        <translation>Impresora: queda poco papel.</translation>
    </message>
    <message>
        <source>0x62070015</source>
        <translation>Impresora lista.</translation>
    </message>
    <message>
        <source>0x62078011</source>
        <translation>Etiqueta impresa.</translation>
    </message>
    <message>
        <source>0x62138006</source>
        <translation>Fecha y hora sincronizadas.</translation>
    </message>
    <message>
        <source>0x621a800d</source>
        <translation>Usuario conectado.</translation>
    </message>
    <message>
        <source>0x62208006</source>
        <translation>Radiografía transmitida.</translation>
    </message>
    <message>
        <source>0x622a8010</source>
        <translation>Acceso remoto del SAT finalizado.</translation>
    </message>
    <message>
        <source>0x622b8010</source>
        <translation>Quillon Pulse: equipo añadido a la cuenta.</translation>
    </message>
    <message>
        <source>0x62318006</source>
        <translation>Registro de calidad del agua actualizado.</translation>
    </message>
    <message>
        <source>0x64068001</source>
        <translation>Desinfección iniciada.</translation>
    </message>
    <message>
        <source>0x64078001</source>
        <translation>Enjuague de los conductos de agua iniciado.</translation>
    </message>
    <message>
        <source>0x6801001b</source>
        <translation>Memoria de eventos borrada.</translation>
    </message>
    <message>
        <source>0x68210025</source>
        <translation>Exportación de datos finalizada.</translation>
    </message>
    <message>
        <source>0x68220026</source>
        <translation>Informe guardado como archivo PDF.</translation>
    </message>
    <message>
        <source>0x68230027</source>
        <translation>Informes antiguos archivados.</translation>
    </message>
    <message>
        <source>0x68240029</source>
        <translation>Importación de datos finalizada correctamente.</translation>
    </message>
    <message>
        <source>0x68258010</source>
        <translation>Asistente interrumpido: Quillon Pulse sin configurar.</translation>
    </message>
    <message>
        <source>0x95000005</source>
        <translation>¿Sensor de entrada obstruido demasiado tiempo?</translation>
    </message>
</context>
</TS>
