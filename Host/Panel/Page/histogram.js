// The histogram of a picture: one curve for grey, or one for each colour.

const colours = { grey: ['--ink'], colour: ['--red', '--green', '--blue'] };

export function drawHistogram(canvas, histogram, saturates) {
	const channels = Array.isArray(histogram[0]) ? histogram : [histogram];
	const ratio = devicePixelRatio;
	const width = canvas.width = Math.round(canvas.clientWidth * ratio);
	const height = canvas.height = Math.round(canvas.clientHeight * ratio);
	const context = canvas.getContext('2d');
	const style = getComputedStyle(canvas);
	// The root shows small counts too. The ends, which saturate, do not set the scale.
	const inner = channels.flatMap((counts) => counts.slice(1, -1));
	const largest = Math.sqrt(Math.max(1, ...inner));
	channels.forEach((counts, channel) => {
		const names = channels.length === 1 ? colours.grey : colours.colour;
		context.fillStyle = style.getPropertyValue(names[channel]);
		context.globalAlpha = channels.length === 1 ? 0.7 : 0.5;
		const step = width / counts.length;
		counts.forEach((count, index) => {
			const bar = Math.min(Math.sqrt(count) / largest, 1) * height;
			context.fillRect(index * step, height - bar, Math.max(step - ratio / 2, 1), bar);
		});
	});
	context.globalAlpha = 1;
	if (saturates) {
		context.fillStyle = style.getPropertyValue('--bad');
		context.fillRect(width - 2 * ratio, 0, 2 * ratio, height);
	}
}
